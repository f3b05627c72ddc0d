#pragma once

#include "color/screen_pixels.h"
#include "core/color_value.h"

namespace huebase {

// The result of the system colour chooser: the colour taken, or colour 0
// with Cancelled set when the user cancelled.
struct ColorChoice {
    ColorValue Color = 0;
    bool Cancelled = false;

    friend bool operator==(const ColorChoice&, const ColorChoice&) = default;
};

// Every custom colour slot of the system chooser starts as this near-white
// until the user changes it; the changes are kept for the process.
inline constexpr std::uint32_t kInitialCustomColor = 0xFEFEFEFE;
inline constexpr int kCustomColorCount = 16;

// Where a window of the given size goes to be centred on an area: half the
// difference of the sizes from the area's top-left, rounded half to even.
ScreenPoint centredOrigin(const ScreenRect& area, int width, int height);

} // namespace huebase
