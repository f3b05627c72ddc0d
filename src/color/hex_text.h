#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace huebase::modColorDialog {

// The value in upper-case hexadecimal (a negative value as its 32-bit two's
// complement), left-padded with zeros to width digits; a longer text keeps
// its rightmost width digits.
std::string HexPad(std::int32_t value, std::int16_t width);

// HexPad(code, 4) of every character (byte) of the text, concatenated.
std::string StringToHex(std::string_view text);

// True for a non-empty text of the characters 0-9 and A-F only (upper case).
bool IsHexText(std::string_view text) noexcept;

} // namespace huebase::modColorDialog
