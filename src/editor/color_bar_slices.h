#pragma once

#include "core/color_value.h"

#include <vector>

namespace huebase {

class NodeRows;

// One filled rectangle of the colour bar, from x0 to x1 in data units over
// the bar's full height.
struct ColorSlice {
    float x0 = 0.0f;
    float x1 = 0.0f;
    ColorValue color = 0;

    friend bool operator==(const ColorSlice&, const ColorSlice&) = default;
};

// The colour bar's ramp as a list of rectangles to fill in order. Each
// interval between neighbouring rows is painted in slices of 1/256 of the
// data range, slice k coloured with the interval's ramp at k slices from its
// start; the last slice may reach past the interval and the next interval
// paints over it. A "None" interval is one flat rectangle in its lower
// colour. With an empty data range there is no slice width, and only "None"
// intervals are painted.
class ColorBarSlices {
public:
    ColorBarSlices() = default;
    // Error 6 when an interval needs more slices than a 16-bit counter holds
    // (an interval over 128 times the data range).
    ColorBarSlices(const NodeRows& rows, float dataMin, float dataMax);

    const std::vector<ColorSlice>& slices() const noexcept { return slices_; }
    float step() const noexcept { return step_; }

private:
    std::vector<ColorSlice> slices_;
    float step_ = 0.0f;
};

} // namespace huebase
