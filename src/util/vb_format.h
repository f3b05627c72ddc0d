#pragma once

#include <string>

namespace huebase {

// Number-to-text conversions that match what the classic runtime shows, so
// that files and tooltips read the same as they always have.

// The decimal separator of the C library's current locale ('.' when the
// locale does not name one). The program sets the locale from the user's
// regional settings at start.
char localeDecimalSeparator();

// The "Fixed" format: optional minus, at least one integer digit, exactly two
// decimals, no grouping (12 -> "12.00", -0.5 -> "-0.50").
// The value is first taken at 15 significant digits and then rounded half away
// from zero, so 2.675 gives "2.68" although its binary value lies just below.
// A result of zero never carries a minus sign. Infinities and NaN, which the
// classic runtime never holds, are error 6 (Overflow).
std::string formatFixed(double value, char decimalSeparator = localeDecimalSeparator());

// The shortest text of a 32-bit float: at most 7 significant digits rounded
// half away from zero, no trailing zeros and no trailing separator.
// Magnitudes of 1E+07 and above and below 1E-04 use the exponent form with
// at least two exponent digits ("1.234568E+07", "1.5E-07"); zero is "0".
// Equal floats give equal texts, and the text depends only on the value, so
// it can serve as a key. Infinities and NaN are error 6 (Overflow).
std::string floatText(float value, char decimalSeparator = localeDecimalSeparator());

} // namespace huebase
