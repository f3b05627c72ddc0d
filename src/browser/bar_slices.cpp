#include "browser/bar_slices.h"

#include "core/lut_node.h"
#include "util/vb_error.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace huebase {

namespace {
// The shown range is 256 slices wide; one more slice at either end may meet it.
constexpr double kShownSlices = 258.0;

std::optional<LutNode> nodeOf(const LutRecord& record) {
    try {
        return toNode(record);
    } catch (const VbError&) {
        return std::nullopt;
    }
}
} // namespace

std::vector<BarSlice> barSlices(const LutRecords& lut, float bound1, float bound2) {
    std::vector<BarSlice> slices;
    const float step = std::fabs(bound1 - bound2) / 256.0f;
    const double shownLow = std::min(bound1, bound2);
    const double shownHigh = std::max(bound1, bound2);
    if (!std::isfinite(step))
        return slices;
    std::optional<LutNode> high = lut.empty() ? std::nullopt : nodeOf(lut.front());
    for (std::size_t i = 0; i + 1 < lut.size(); ++i) {
        const std::optional<LutNode> low = high;
        high = nodeOf(lut[i + 1]);
        if (!low || !high)
            continue;
        if (low->method == MethodNone) {
            slices.push_back({low->value, high->value, low->color});
            continue;
        }
        if (step == 0.0f)
            continue;
        const float span = high->value - low->value;
        const float dt = span == 0.0f ? 0.0f : std::fabs(step / span);
        // Slices 0 .. round(span / step), of which only those meeting the
        // shown range are listed. Positions are taken in double so that a
        // node far away does not blur them.
        const double start = low->value;
        const double width = step;
        const double count = std::nearbyint(static_cast<double>(span) / width);
        const double first = std::max(0.0, std::floor((shownLow - start) / width));
        const double last = std::min(count, std::floor((shownHigh - start) / width));
        if (!(first <= last))
            continue;
        // Counted in integers: past 2^53 a double no longer changes by 1, and
        // the shown range never holds more than kShownSlices slices.
        const auto extra = static_cast<std::int64_t>(std::min(last - first, kShownSlices));
        for (std::int64_t j = 0; j <= extra; ++j) {
            const double k = first + static_cast<double>(j);
            const float t = static_cast<float>(k) * dt;
            const ColorValue color =
                BlendColor(low->color, high->color, rampWeight(low->method, t));
            slices.push_back({static_cast<float>(start + k * width),
                              static_cast<float>(start + (k + 1.0) * width), color});
        }
    }
    return slices;
}

} // namespace huebase
