#pragma once

#include <cstdint>

namespace huebase {

// Real-to-integer conversions as the classic runtime does them: round to
// nearest with ties to even, and a result that does not fit is error 6.

// Nearest integer value, ties to even (2.5 -> 2, 3.5 -> 4, -0.5 -> -0).
double roundHalfEven(double x) noexcept;

// Rounded and range-checked; throws VbError(Overflow) when out of range or NaN.
std::int16_t toInt16(double x);
std::int32_t toInt32(double x);

// A double as a 32-bit float, rounded to nearest; a value beyond the float
// range (or NaN) is error 6 (Overflow) instead of an infinity.
float toSingle(double x);

// Range-checked integer narrowing (no rounding involved).
std::int16_t checkedInt16(std::int64_t x);
std::int32_t checkedInt32(std::int64_t x);

} // namespace huebase
