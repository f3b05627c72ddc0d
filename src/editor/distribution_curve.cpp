#include "editor/distribution_curve.h"

#include <algorithm>

namespace huebase {

DistributionCurve::DistributionCurve(const std::vector<DistributionRow>& rows, CountScale scale) {
    if (rows.size() < 2)
        return;
    lines_.reserve(rows.size() - 1);
    points_.reserve(rows.size() - 1);
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        const CurvePoint here{rows[i].value, scale.toAxis(rows[i].count)};
        const CurvePoint next{rows[i + 1].value, scale.toAxis(rows[i + 1].count)};
        lines_.push_back({here, next});
        // The last row gets no point of its own; only the line reaches it.
        points_.push_back(here);
    }
}

std::optional<double> DistributionCurve::heightAt(double x) const {
    // The first segment that ends at or after x; the values ascend.
    const auto s = std::ranges::partition_point(
        lines_, [x](const CurveSegment& segment) { return segment.to.x < x; });
    if (s == lines_.end() || x < s->from.x)
        return std::nullopt;
    const double span = s->to.x - s->from.x;
    if (span <= 0.0)
        return std::max(s->from.y, s->to.y);
    return s->from.y + (x - s->from.x) / span * (s->to.y - s->from.y);
}

} // namespace huebase
