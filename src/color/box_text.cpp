#include "color/box_text.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace huebase {

namespace {
bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

std::string withoutBlanks(std::string_view text) {
    std::string kept;
    for (const char c : text)
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r')
            kept += c;
    return kept;
}

bool tooLarge(BoxScale scale, double value) noexcept {
    switch (scale) {
    case BoxScale::Component:
        return value > 255.0;
    case BoxScale::Hue:
        return value >= 240.0; // 240 is hue 0 again
    case BoxScale::Level:
        return value > 240.0;
    }
    return false;
}
} // namespace

double leadingNumber(std::string_view text) {
    std::string s = withoutBlanks(text);
    std::size_t i = 0;
    bool negative = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        negative = s[i++] == '-';
    const std::size_t start = i;
    bool anyDigit = false;
    while (i < s.size() && isDigit(s[i])) {
        ++i;
        anyDigit = true;
    }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && isDigit(s[i])) {
            ++i;
            anyDigit = true;
        }
    }
    if (!anyDigit)
        return 0.0;
    std::size_t end = i;
    if (i < s.size() && std::strchr("eEdD", s[i]) != nullptr) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-'))
            ++j;
        if (j < s.size() && isDigit(s[j])) {
            s[i] = 'e';
            while (j < s.size() && isDigit(s[j]))
                ++j;
            end = j;
        }
    }
    double value = 0.0;
    const auto result = std::from_chars(s.data() + start, s.data() + end, value);
    if (result.ec == std::errc::result_out_of_range)
        value = s.find('-', i) != std::string::npos ? 0.0 : HUGE_VAL;
    return negative ? -value : value;
}

std::string plainNumberText(double value) {
    if (value == 0.0)
        return "0"; // also for -0
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return std::string(buffer, end);
}

int boxMaximum(BoxScale scale) noexcept {
    switch (scale) {
    case BoxScale::Component:
        return 255;
    case BoxScale::Hue:
        return 239;
    case BoxScale::Level:
        return 240;
    }
    return 0;
}

std::string boxText(BoxScale scale, std::string_view typed) {
    const double value = leadingNumber(typed);
    if (tooLarge(scale, value))
        return std::to_string(boxMaximum(scale));
    if (value < 0.0)
        return "0";
    return plainNumberText(value);
}

} // namespace huebase
