#include "util/vb_numeric.h"

#include "util/vb_error.h"

#include <cmath>
#include <limits>

namespace huebase {

// std::nearbyint follows the current rounding mode; the program never leaves
// the default round-to-nearest-even mode.
double roundHalfEven(double x) noexcept { return std::nearbyint(x); }

namespace {
template <typename Int> Int roundedChecked(double x) {
    const double r = roundHalfEven(x);
    if (!(r >= static_cast<double>(std::numeric_limits<Int>::min()) &&
          r <= static_cast<double>(std::numeric_limits<Int>::max())))
        throw VbError(VbError::Overflow);
    return static_cast<Int>(r);
}

template <typename Int> Int narrowedChecked(std::int64_t x) {
    if (x < std::numeric_limits<Int>::min() || x > std::numeric_limits<Int>::max())
        throw VbError(VbError::Overflow);
    return static_cast<Int>(x);
}
} // namespace

std::int16_t toInt16(double x) { return roundedChecked<std::int16_t>(x); }
std::int32_t toInt32(double x) { return roundedChecked<std::int32_t>(x); }
float toSingle(double x) {
    const float single = static_cast<float>(x);
    if (!std::isfinite(single))
        throw VbError(VbError::Overflow);
    return single;
}

std::int16_t checkedInt16(std::int64_t x) { return narrowedChecked<std::int16_t>(x); }
std::int32_t checkedInt32(std::int64_t x) { return narrowedChecked<std::int32_t>(x); }

} // namespace huebase
