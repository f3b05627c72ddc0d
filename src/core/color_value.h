#pragma once

#include <cstdint>

namespace huebase {

// A colour as the whole program stores it: red in bits 0-7, green in 8-15,
// blue in 16-23 (red + 256 * green + 65536 * blue). The host's exchange file
// uses the reverse order; see the host session.
using ColorValue = std::int32_t;

std::int16_t RedOf(ColorValue color) noexcept;
// Masks with 0x0100FF00: a colour with bit 24 set gives 65536 + green, which
// does not fit the 16-bit result and is error 6 (Overflow).
std::int16_t GreenOf(ColorValue color);
std::int16_t BlueOf(ColorValue color) noexcept;

// red + 256 * green + 65536 * blue; a component above 255 is taken as 255.
ColorValue composeColor(int red, int green, int blue) noexcept;

// Linear blend from a (t <= 0, NaN included) to b (t >= 1); the ends return
// the input unchanged, upper bits and all. Channels round half to even.
ColorValue BlendColor(ColorValue a, ColorValue b, float t);

} // namespace huebase
