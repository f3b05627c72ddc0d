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
    // Counted in integers: far from zero (1e20 with a step of 1e12, say) a
    // double no longer changes by 1, and the range never holds more than
    // wanted + 1 steps.
    const double first = std::ceil(from / tick(1.0));
    for (int j = 0; j <= wanted + 1; ++j) {
        const double value = tick(first + j);
        if (!(value <= to))
            break;
        if (ticks.empty() || value > ticks.back())
            ticks.push_back(value == 0.0 ? 0.0 : value);
    }
    return ticks;
}

} // namespace huebase
