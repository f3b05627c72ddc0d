#pragma once

#include "util/vb_format.h"

#include <optional>
#include <string>
#include <string_view>

namespace huebase {

// The outcome of leaving a row's value box: the text the box shows now and
// the value stored from it.
struct ValidatedValue {
    std::string text;
    float value = 0.0f;

    friend bool operator==(const ValidatedValue&, const ValidatedValue&) = default;
};

// Checks a typed value against the row's bounds with a fixed margin of one
// data unit: a value at or above the upper bound becomes upper - 1; the
// result is then read again and, at or below the lower bound, becomes
// lower + 1. The upper test comes first, so with bounds closer than two
// units the value can end above the upper bound; that order is kept on
// purpose. Replaced texts are written in the shortest float form with the
// given separator; a replacement beyond the float range (an infinite or
// extreme bound) is clamped to the largest float of its sign. Nothing (no
// change at all) when the text is not numeric.
std::optional<ValidatedValue> validateRowValue(std::string_view text, float lower, float upper,
                                               char localeSeparator = localeDecimalSeparator());

} // namespace huebase
