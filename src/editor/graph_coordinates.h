#pragma once

#include "editor/count_scale.h"

namespace huebase {

// The user coordinate system of the distribution graph: x in data units,
// y in occurrence counts, growing upwards. The colour bar under the graph
// shares its horizontal scale so that the ramp lines up with the curve.
struct GraphCoordinates {
    float left = 0.0f;
    float width = 1.0f;
    float top = 1.0f;
    float height = -1.0f; // negative: counts grow upwards

    // A margin of 2.5 % of the range on each side of the values; counts from
    // -0.2 * maxCount at the bottom edge to 1.1 * maxCount at the top.
    static GraphCoordinates forDistribution(float dataMin, float dataMax, float maxCount);

    // The same value axis with heights measured on `scale`: the count axis
    // spans what forDistribution gives for the scaled highest count. The
    // linear scale returns these coordinates unchanged.
    GraphCoordinates onScale(CountScale scale, float maxCount) const;

    // Conversions between user coordinates and a widget's pixels (0 at the
    // left or top edge, `pixels` across). A scale of zero extent maps
    // everything to its edge, so a single-valued distribution draws nothing
    // off screen and never divides by zero.
    double xToPixel(double x, double pixels) const;
    double yToPixel(double y, double pixels) const;
    double pixelToX(double pixel, double pixels) const;
    double pixelToY(double pixel, double pixels) const;

    friend bool operator==(const GraphCoordinates&, const GraphCoordinates&) = default;
};

} // namespace huebase
