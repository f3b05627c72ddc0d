#include "editor/row_value_validation.h"

#include "editor/numeric_text.h"
#include "util/vb_format.h"

#include <algorithm>
#include <limits>

namespace huebase {

std::optional<ValidatedValue> validateRowValue(std::string_view text, float lower, float upper,
                                               char localeSeparator) {
    const std::optional<float> typed = NumericText::toSingle(text, localeSeparator);
    if (!typed)
        return std::nullopt;
    ValidatedValue result{std::string(text), *typed};
    // Each replaced text is read back, so the stored value is exactly what
    // the box shows.
    // A bound at or near the end of the float range gives a replacement
    // beyond it; the box then shows the largest float of that sign.
    const auto replace = [&](float value) {
        constexpr float kLargest = std::numeric_limits<float>::max();
        value = std::clamp(value, -kLargest, kLargest);
        result.text = floatText(value, localeSeparator);
        result.value = NumericText::toSingle(result.text, localeSeparator).value_or(value);
    };
    if (result.value >= upper)
        replace(upper - 1.0f);
    if (result.value <= lower)
        replace(lower + 1.0f);
    return result;
}

} // namespace huebase
