#include "editor/axis_ticks.h"

#include <cmath>

namespace huebase {

std::vector<double> axisTicks(double from, double to, int wanted) {
    std::vector<double> ticks;
    const double range = to - from;
    if (!(range > 0.0) || !std::isfinite(range) || wanted < 1)
        return ticks;
    const double rough = range / wanted;
    double exponent = std::floor(std::log10(rough));
    double factor = 10.0;
    for (const double f : {1.0, 2.0, 5.0}) {
        if (f * std::pow(10.0, exponent) >= rough) {
            factor = f;
            break;
        }
    }
    if (factor == 10.0) {
        factor = 1.0;
        exponent += 1.0;
    }
    // Whole multiples of the factor scaled once by a power of ten, so 0.7
    // is the double nearest to 0.7 rather than 7 * 0.1.
    const double scale = std::pow(10.0, std::fabs(exponent));
    const auto tick = [&](double k) {
        return exponent < 0 ? k * factor / scale : k * factor * scale;
    };
    const double step = tick(1.0);
    for (double k = std::ceil(from / step); tick(k) <= to; k += 1.0)
        ticks.push_back(tick(k) == 0.0 ? 0.0 : tick(k));
    return ticks;
}

} // namespace huebase
