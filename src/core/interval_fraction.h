#pragma once

#include <bit>
#include <cstdint>

namespace huebase {

// difference / span rounded to a 32-bit float, where difference is x - value
// in double and span a row span; the same float as dividing in double and
// rounding once, but by multiplying with the rounded reciprocal.
//
// The product lies within three units of the last double bit from the
// quotient, so both round to the same float unless the product is that close
// to a halfway point between two floats (the 29 bits dropped by the rounding
// are near 1000...0), or the result is below the normal float range, where
// fewer bits are kept. Those rare cases divide. difference must not be
// negative.
inline float intervalFraction(double difference, double inverseSpan, float span) noexcept {
    const double product = difference * inverseSpan;
    const auto bits = std::bit_cast<std::uint64_t>(product);
    constexpr std::uint64_t dropped = (std::uint64_t{1} << 29) - 1;
    constexpr std::uint64_t halfway = std::uint64_t{1} << 28;
    const std::uint64_t distance = (bits & dropped) - (halfway - 3);
    // As unsigned, a zero product wraps above the limit: zero is exact.
    constexpr std::uint64_t tiny = std::bit_cast<std::uint64_t>(0x1p-125);
    if (distance <= 6 || bits - 1 < tiny - 1) [[unlikely]]
        return static_cast<float>(difference / span);
    return static_cast<float>(product);
}

} // namespace huebase
