#include "core/color_bar_slices.h"

#include "util/vb_numeric.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace huebase {

namespace {
// The range is 256 slices wide; one more slice at either end may meet it.
constexpr double kShownSlices = 258.0;

ColorValue sliceColor(const LutNode& low, const LutNode& high, float t) {
    return BlendColor(low.color, high.color, rampWeight(low.method, t));
}
} // namespace

ColorBarSlices::ColorBarSlices(float bound1, float bound2, SliceSpan span)
    : step_(std::fabs(bound1 - bound2) / 256.0f), shownLow_(std::min(bound1, bound2)),
      shownHigh_(std::max(bound1, bound2)), span_(span) {}

ColorBarSlices::ColorBarSlices(const LutTable& nodes, float bound1, float bound2, SliceSpan span)
    : ColorBarSlices(bound1, bound2, span) {
    for (std::size_t i = 0; i + 1 < nodes.size(); ++i)
        addInterval(nodes[i], nodes[i + 1]);
}

void ColorBarSlices::addInterval(const LutNode& low, const LutNode& high) {
    if (span_ == SliceSpan::Shown && !std::isfinite(step_))
        return;
    if (low.method == MethodNone) {
        slices_.push_back({low.value, high.value, low.color});
        return;
    }
    if (step_ == 0.0f)
        return;
    const float length = high.value - low.value;
    const float dt = length == 0.0f ? 0.0f : std::fabs(step_ / length);
    if (span_ == SliceSpan::Whole)
        addWhole(low, high, dt);
    else
        addShown(low, high, dt);
}

void ColorBarSlices::addWhole(const LutNode& low, const LutNode& high, float dt) {
    const std::int16_t count = toInt16((high.value - low.value) / step_);
    for (std::int32_t k = 0; k <= count; ++k)
        slices_.push_back({low.value + static_cast<float>(k) * step_,
                           low.value + static_cast<float>(k + 1) * step_,
                           sliceColor(low, high, static_cast<float>(k) * dt)});
}

void ColorBarSlices::addShown(const LutNode& low, const LutNode& high, float dt) {
    const double start = low.value;
    const double width = step_;
    const double count = std::nearbyint(static_cast<double>(high.value - low.value) / width);
    const double first = std::max(0.0, std::floor((shownLow_ - start) / width));
    const double last = std::min(count, std::floor((shownHigh_ - start) / width));
    if (!(first <= last))
        return;
    // Counted in integers: past 2^53 a double no longer changes by 1, and the
    // range never holds more than kShownSlices slices.
    const auto extra = static_cast<std::int64_t>(std::min(last - first, kShownSlices));
    for (std::int64_t j = 0; j <= extra; ++j) {
        const double k = first + static_cast<double>(j);
        slices_.push_back({static_cast<float>(start + k * width),
                           static_cast<float>(start + (k + 1.0) * width),
                           sliceColor(low, high, static_cast<float>(k) * dt)});
    }
}

} // namespace huebase
