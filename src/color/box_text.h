#pragma once

#include <string>
#include <string_view>

namespace huebase {

// The number a text box holds, read as the classic Val does: blanks, tabs
// and line ends anywhere are skipped, then the longest leading decimal number
// (sign, digits, point, exponent with E or D) is taken; 0 when there is none.
double leadingNumber(std::string_view text);

// An integral value without a point ("7"); any other in its shortest form.
std::string plainNumberText(double value);

// What a box of the colour dialog holds: a component 0..255, a hue 0..239,
// or a saturation or luminance 0..240.
enum class BoxScale { Component, Hue, Level };

int boxMaximum(BoxScale scale) noexcept;

// The text a box shows after an edit: its maximum when the number is too
// large (a hue from 240 on, the others above their maximum), "0" when it is
// negative, otherwise the number written back plainly ("007" -> "7",
// "abc" -> "0").
std::string boxText(BoxScale scale, std::string_view typed);

} // namespace huebase
