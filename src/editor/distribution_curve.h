#pragma once

#include "core/color_value.h"
#include "editor/count_scale.h"
#include "editor/distribution.h"

#include <optional>
#include <vector>

namespace huebase {

struct CurvePoint {
    double x = 0.0; // data value
    double y = 0.0; // occurrence count
    friend bool operator==(const CurvePoint&, const CurvePoint&) = default;
};

struct CurveSegment {
    CurvePoint from;
    CurvePoint to;
    friend bool operator==(const CurveSegment&, const CurveSegment&) = default;
};

// What the graph draws for a distribution, in graph coordinates: a thin white
// line through consecutive (value, count) rows, then thicker black points on
// every row but the last. The widget maps and draws them in this order.
// Heights are the counts measured on the given count scale.
class DistributionCurve {
public:
    static constexpr int kLineWidth = 1;
    static constexpr ColorValue kLineColor = 0xFFFFFF;
    static constexpr int kPointWidth = 2;
    static constexpr ColorValue kPointColor = 0x000000;

    DistributionCurve() = default;
    explicit DistributionCurve(const std::vector<DistributionRow>& rows, CountScale scale = {});

    const std::vector<CurveSegment>& lines() const noexcept { return lines_; }
    const std::vector<CurvePoint>& points() const noexcept { return points_; }

    // The height of the line at value x, read along the segment over x;
    // nothing outside the first and last values.
    std::optional<double> heightAt(double x) const;

private:
    std::vector<CurveSegment> lines_;
    std::vector<CurvePoint> points_;
};

} // namespace huebase
