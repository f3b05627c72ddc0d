#pragma once

#include "browser/lut_record.h"
#include "core/color_value.h"

#include <vector>

namespace huebase {

// One filled box of a colour bar, from x0 to x1 in data units over the
// bar's full height.
struct BarSlice {
    float x0 = 0.0f;
    float x1 = 0.0f;
    ColorValue color = 0;

    friend bool operator==(const BarSlice&, const BarSlice&) = default;
};

// The boxes that paint a row's table over the shown range [bound1, bound2]
// (either order), in painting order. Each interval from node i to node i+1
// is painted from its start in slices of |bound2 - bound1| / 256, slice k
// coloured BlendColor(colour i, colour i+1, w(t)) with t = k slices over the
// interval's length and w the ramp of node i's method; the last slice may
// reach past the interval and the next interval paints over it. A "None"
// interval is one flat box in node i's colour. Only the slices that meet the
// shown range are listed, so a node far outside it costs nothing. With an
// empty range only "None" intervals are painted. An interval whose fields do
// not convert to a node is skipped.
std::vector<BarSlice> barSlices(const LutRecords& lut, float bound1, float bound2);

} // namespace huebase
