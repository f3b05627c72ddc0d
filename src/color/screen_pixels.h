#pragma once

#include "core/color_value.h"

#include <cstdint>

namespace huebase {

// A point on the screen in pixels.
struct ScreenPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

// right and bottom are one past the last pixel (left + width, top + height).
struct ScreenRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

// What screen picking needs from the windowing system. The program reads the
// real screen; tests feed a made-up one.
class ScreenPixels {
public:
    virtual ~ScreenPixels() = default;
    virtual ScreenPoint pointerPosition() const = 0;
    virtual ScreenRect screenGeometry() const = 0;
    // The colour at a screen point; black where nothing can be read.
    virtual ColorValue pixelAt(ScreenPoint point) const = 0;
};

} // namespace huebase
