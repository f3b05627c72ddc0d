#include "color/hex_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace huebase::modColorDialog {

std::string HexPad(std::int32_t value, std::int16_t width) {
    char buffer[8];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, static_cast<std::uint32_t>(value), 16).ptr;
    std::string digits(buffer, end);
    std::transform(digits.begin(), digits.end(), digits.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const auto size = static_cast<std::size_t>(std::max<std::int16_t>(width, 0));
    if (digits.size() >= size)
        return digits.substr(digits.size() - size);
    return std::string(size - digits.size(), '0') + digits;
}

std::string StringToHex(std::string_view text) {
    std::string hex;
    hex.reserve(text.size() * 4);
    for (const char c : text)
        hex += HexPad(static_cast<unsigned char>(c), 4);
    return hex;
}

bool IsHexText(std::string_view text) noexcept {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F');
    });
}

} // namespace huebase::modColorDialog
