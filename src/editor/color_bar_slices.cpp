#include "editor/color_bar_slices.h"

#include "core/lut_node.h"
#include "editor/node_rows.h"
#include "util/vb_numeric.h"

#include <cmath>

namespace huebase {

ColorBarSlices::ColorBarSlices(const NodeRows& rows, float dataMin, float dataMax)
    : step_(std::fabs(dataMax - dataMin) / 256.0f) {
    const std::vector<NodeRow>& all = rows.all();
    for (std::size_t i = 0; i + 1 < all.size(); ++i) {
        const float lo = all[i].value;
        const float hi = all[i + 1].value;
        const ColorValue c1 = all[i].color;
        const ColorValue c2 = all[i + 1].color;
        const std::uint8_t method = all[i].method;
        if (method == MethodNone) {
            slices_.push_back({lo, hi, c1});
            continue;
        }
        if (step_ == 0.0f)
            continue;
        const float span = hi - lo;
        // A zero-length interval gets its one slice at t = 0.
        const float dt = span == 0.0f ? 0.0f : std::fabs(step_ / span);
        const std::int16_t n = toInt16(span / step_);
        for (std::int32_t k = 0; k <= n; ++k) {
            const float t = static_cast<float>(k) * dt;
            const ColorValue color = BlendColor(c1, c2, rampWeight(method, t));
            slices_.push_back({lo + static_cast<float>(k) * step_,
                               lo + static_cast<float>(k + 1) * step_, color});
        }
    }
}

} // namespace huebase
