#include "editor/distribution_curve.h"

namespace huebase {

DistributionCurve::DistributionCurve(const std::vector<DistributionRow>& rows) {
    if (rows.size() < 2)
        return;
    lines_.reserve(rows.size() - 1);
    points_.reserve(rows.size() - 1);
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        const CurvePoint here{rows[i].value, rows[i].count};
        const CurvePoint next{rows[i + 1].value, rows[i + 1].count};
        lines_.push_back({here, next});
        // The last row gets no point of its own; only the line reaches it.
        points_.push_back(here);
    }
}

} // namespace huebase
