#include "editor/numeric_text.h"

#include <cctype>
#include <charconv>
#include <string>
#include <system_error>

namespace huebase::NumericText {

namespace {
bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}
} // namespace

std::optional<float> toSingle(std::string_view text, char localeSeparator) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);

    // Rewritten in the form std::from_chars reads: '.', 'e', no '+'.
    std::string plain;
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        if (text[i] == '-')
            plain.push_back('-');
        ++i;
    }
    bool digits = false;
    bool separator = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (isDigit(c)) {
            digits = true;
            plain.push_back(c);
        } else if ((c == '.' || c == localeSeparator) && !separator) {
            separator = true;
            plain.push_back('.');
        } else {
            break;
        }
    }
    if (!digits)
        return std::nullopt;
    if (i < text.size()) {
        const char e = text[i];
        if (e != 'e' && e != 'E' && e != 'd' && e != 'D')
            return std::nullopt;
        plain.push_back('e');
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
            plain.push_back(text[i]);
            ++i;
        }
        const std::size_t exponentStart = i;
        for (; i < text.size() && isDigit(text[i]); ++i)
            plain.push_back(text[i]);
        if (i == exponentStart || i != text.size())
            return std::nullopt;
    }

    float value = 0.0f;
    const auto [end, ec] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (ec != std::errc() || end != plain.data() + plain.size())
        return std::nullopt;
    return value;
}

} // namespace huebase::NumericText
