// A value typed into an editor row and checked against the row's bounds,
// with the number texts behind it. The input is the lower bound (4 bytes, a
// float as stored), the upper bound (4 bytes), the locale's decimal
// separator (1 byte: odd for a comma, even for a point) and the typed text (the rest); a short
// input is padded with zero bytes. The first 8 bytes also serve as a double for "Fixed".
//
// Invariants:
// - a typed text is accepted exactly when it reads as a finite float;
// - an accepted text that is not replaced keeps its value; any text the row
//   shows reads back as exactly the value it stores;
// - the float text of a finite float reads back to within its 7 digits;
// - "Fixed" text is an optional minus, digits, the separator and two digits,
//   within half a hundredth (and 15 significant digits) of the value, and
//   symmetric in the sign.
// - validation raises nothing, infinite and extreme bounds included.
#include "fuzz_support.h"

#include "editor/numeric_text.h"
#include "editor/row_value_validation.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using namespace huebase;

template <typename T> T readBytes(const std::array<std::uint8_t, 9>& header, std::size_t at) {
    T value;
    std::memcpy(&value, header.data() + at, sizeof value);
    return value;
}

// The text is the value at 7 significant digits, so it reads back within
// half a unit of the 7th digit plus half a float step. (Not necessarily to a
// float with the same text: just below a power of ten the next float down
// shows one more digit, "1E+28" reading back as 9.999999E+27.)
void checkFloatText(float value, char separator) {
    if (!std::isfinite(value))
        return;
    const std::string text = floatText(value, separator);
    const std::optional<float> back = NumericText::toSingle(text, separator);
    FUZZ_CHECK(back.has_value());
    const double exact = value;
    FUZZ_CHECK(std::fabs(*back - exact) <= 5.7e-7 * std::fabs(exact) + 1.5e-45);
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

void checkFixed(double value, char separator) {
    if (!std::isfinite(value))
        return;
    const std::string text = formatFixed(value, separator);
    const std::size_t digitsStart = text[0] == '-' ? 1 : 0;
    const std::size_t point = text.size() - 3;
    FUZZ_CHECK(text.size() >= digitsStart + 4 && text[point] == separator);
    FUZZ_CHECK(std::all_of(text.begin() + digitsStart, text.begin() + point, isDigit));
    FUZZ_CHECK(isDigit(text[point + 1]) && isDigit(text[point + 2]));
    std::string plain = text;
    plain[point] = '.';
    // Long double: 15 digits of the largest doubles may round past their range.
    const long double back = std::strtold(plain.c_str(), nullptr);
    const long double exact = value;
    FUZZ_CHECK(std::fabs(back - exact) <= 0.0051L + std::fabs(exact) * 1e-14L);
    const std::string negated = formatFixed(-value, separator);
    if (text == "0" + std::string(1, separator) + "00")
        FUZZ_CHECK(negated == text);
    else
        FUZZ_CHECK(negated == (digitsStart == 1 ? text.substr(1) : "-" + text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::array<std::uint8_t, 9> header{};
    std::memcpy(header.data(), data, std::min(size, header.size()));
    const std::string_view typed =
        size > header.size() ? fuzz::bytes(data + header.size(), size - header.size()) : "";
    const auto lower = readBytes<float>(header, 0);
    const auto upper = readBytes<float>(header, 4);
    const char separator = (header[8] & 1) != 0 ? ',' : '.';

    const std::optional<float> single = NumericText::toSingle(typed, separator);
    if (single)
        FUZZ_CHECK(std::isfinite(*single));
    checkFloatText(lower, separator);
    checkFloatText(upper, separator);
    if (single)
        checkFloatText(*single, separator);
    checkFixed(readBytes<double>(header, 0), separator);
    if (single)
        checkFixed(*single, separator);

    // Validation never raises, whatever the bounds: it runs as the user leaves a box.
    const std::optional<ValidatedValue> row = validateRowValue(typed, lower, upper, separator);
    FUZZ_CHECK(row.has_value() == single.has_value());
    if (row) {
        if (row->text == typed)
            FUZZ_CHECK(row->value == *single || (std::isnan(row->value) && std::isnan(*single)));
        const std::optional<float> shown = NumericText::toSingle(row->text, separator);
        FUZZ_CHECK(shown.has_value() && *shown == row->value);
    }
    return 0;
}
