#pragma once

#include "util/vb_format.h"

#include <optional>
#include <string_view>

// Reading a number typed into a text box the way the classic runtime's
// numeric test and single-precision conversion read it.
namespace huebase::NumericText {

// The text as a 32-bit float, or nothing when it is not numeric. Accepted:
// blanks (spaces, tabs) around the number, an optional sign, digits with at
// most one decimal separator and at least one digit, and an optional exponent
// (E or D, optional sign, digits). The separator is '.' or the given locale
// separator, so that a value shown in the user's regional form reads back.
// A number beyond the float range is not accepted either.
std::optional<float> toSingle(std::string_view text,
                              char localeSeparator = localeDecimalSeparator());

} // namespace huebase::NumericText
