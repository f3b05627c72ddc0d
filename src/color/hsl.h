#pragma once

#include "core/color_value.h"

#include <cstdint>

namespace huebase {

// Hue, saturation and luminance on the 0..240 scale shown by the colour
// dialog. Hue normally lies in 0..239 (240 is the same hue as 0, and the
// conversion can yield 240 itself); a grey has hue 160.
struct HSLColor {
    std::int16_t Hue = 0;
    std::int16_t Saturation = 0;
    std::int16_t Luminance = 0;

    friend bool operator==(const HSLColor&, const HSLColor&) = default;
};

// The integer-scaled HLS scheme: HSL values 0..240, components 0..255. The
// rounding terms are deliberate and decide which integers the dialog shows, so
// RGB -> HSL -> RGB is not an exact round trip. Every conversion to an integer
// rounds half to even.
namespace modHSL {

std::int16_t IntMax(std::int16_t a, std::int16_t b) noexcept;
std::int16_t IntMin(std::int16_t a, std::int16_t b) noexcept;

HSLColor RGBToHSL(ColorValue color);
// A component above 255 is taken as 255.
ColorValue HSLToRGB(const HSLColor& hsl);
// One channel on the 0..240 scale from the two magic values and a hue offset.
double HueToRGB(double m1, double m2, double hue) noexcept;

// White (0xFFFFFF) when the colour's luminance is at most 120, else black.
ColorValue ContrastTextColor(ColorValue color);
// Moves the luminance by amount * 240 (capped at 240 or raised to 0); an
// amount of zero or below returns the colour unchanged.
ColorValue LightenColor(ColorValue color, float amount);
ColorValue DarkenColor(ColorValue color, float amount);

} // namespace modHSL
} // namespace huebase
