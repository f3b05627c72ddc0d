#pragma once

#include "core/color_value.h"

namespace huebase {

// The colour dialog's palette: a hue x luminance field at full saturation,
// hue 0..239 from left to right and luminance 240 (white) at the top row to
// 0 (black) at the bottom row, with a narrow stripe of the greys of the same
// luminance along the right edge. Points outside the field are black.
ColorValue paletteColorAt(int x, int y, int width, int height);

inline constexpr int kPaletteGreyStripe = 14;

} // namespace huebase
