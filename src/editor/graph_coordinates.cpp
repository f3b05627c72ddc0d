#include "editor/graph_coordinates.h"

#include <cmath>

namespace huebase {

namespace {
double toPixel(double u, double origin, double extent, double pixels) {
    return extent == 0.0 ? 0.0 : (u - origin) / extent * pixels;
}

double fromPixel(double pixel, double origin, double extent, double pixels) {
    return pixels == 0.0 ? origin : origin + pixel / pixels * extent;
}
} // namespace

GraphCoordinates GraphCoordinates::forDistribution(float dataMin, float dataMax, float maxCount) {
    const double range = std::fabs(static_cast<double>(dataMax) - dataMin);
    GraphCoordinates c;
    c.left = static_cast<float>(dataMin - 0.025 * range);
    c.width = static_cast<float>(1.05 * range);
    c.top = static_cast<float>(1.1 * maxCount);
    c.height = static_cast<float>(-1.3 * maxCount);
    return c;
}

GraphCoordinates GraphCoordinates::onScale(CountScale scale, float maxCount) const {
    if (scale.linear())
        return *this;
    const GraphCoordinates counts =
        forDistribution(0.0f, 0.0f, static_cast<float>(scale.toAxis(maxCount)));
    GraphCoordinates c = *this;
    c.top = counts.top;
    c.height = counts.height;
    return c;
}

double GraphCoordinates::xToPixel(double x, double pixels) const {
    return toPixel(x, left, width, pixels);
}

double GraphCoordinates::yToPixel(double y, double pixels) const {
    return toPixel(y, top, height, pixels);
}

double GraphCoordinates::pixelToX(double pixel, double pixels) const {
    return fromPixel(pixel, left, width, pixels);
}

double GraphCoordinates::pixelToY(double pixel, double pixels) const {
    return fromPixel(pixel, top, height, pixels);
}

} // namespace huebase
