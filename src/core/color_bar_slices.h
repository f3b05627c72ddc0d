#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"

#include <cstdint>
#include <vector>

namespace huebase {

// One filled box of a colour bar, from x0 to x1 in data units over the bar's
// full height.
struct ColorSlice {
    float x0 = 0.0f;
    float x1 = 0.0f;
    ColorValue color = 0;

    friend bool operator==(const ColorSlice&, const ColorSlice&) = default;
};

// Which slices of an interval are listed.
enum class SliceSpan : std::uint8_t {
    // Every slice, counted by a 16-bit counter (error 6 when an interval needs
    // more, i.e. spans over 128 times the range) and placed in single
    // precision: the editor's bar.
    Whole,
    // Only the slices that meet the range, so a node far outside it costs
    // nothing and nothing is ever raised: a browser row's bar. Positions are taken in double, as
    // slice numbers may pass what a float counts exactly. An infinite range
    // lists nothing.
    Shown,
};

// A colour table as the boxes that paint it over the range [bound1, bound2]
// (either order), in painting order. Each interval from node i to node i+1
// is painted from its start in slices of |bound2 - bound1| / 256, slice k
// coloured BlendColor(colour i, colour i+1, w(t)) with t = k slices over the
// interval's length and w the ramp of node i's method; slices run from k = 0
// to the interval's length in slices rounded half to even, so the last one
// may reach past the interval and the next interval paints over it. A
// zero-length interval gets its one slice at t = 0. A "None" interval is one
// flat box in node i's colour, whatever the range. With an empty range there
// is no slice width, and only "None" intervals are painted.
class ColorBarSlices {
public:
    ColorBarSlices() = default;
    // No interval yet; add them in painting order.
    ColorBarSlices(float bound1, float bound2, SliceSpan span);
    // Every interval between neighbouring nodes of the table.
    ColorBarSlices(const LutTable& nodes, float bound1, float bound2, SliceSpan span);

    void addInterval(const LutNode& low, const LutNode& high);

    const std::vector<ColorSlice>& slices() const noexcept { return slices_; }
    float step() const noexcept { return step_; }

private:
    void addWhole(const LutNode& low, const LutNode& high, float dt);
    void addShown(const LutNode& low, const LutNode& high, float dt);

    std::vector<ColorSlice> slices_;
    float step_ = 0.0f;
    double shownLow_ = 0.0;
    double shownHigh_ = 0.0;
    SliceSpan span_ = SliceSpan::Whole;
};

} // namespace huebase
