#include "util/vb_format.h"

#include "util/vb_error.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace huebase {

namespace {

// A decimal number d1.d2d3... x 10^exponent; no digits means zero.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;

    bool isZero() const { return digits.empty(); }

    // The digit that stands for 10^power.
    char digitAt(int power) const {
        const int index = exponent - power;
        return index >= 0 && index < static_cast<int>(digits.size()) ? digits[index] : '0';
    }

    // Keeps the first `keep` significant digits, rounding half away from zero
    // on the decimal digits themselves, then drops trailing zeros.
    void roundTo(int keep) {
        if (keep < static_cast<int>(digits.size())) {
            const bool up = keep >= 0 && digits[keep] >= '5';
            digits.resize(std::max(keep, 0));
            if (up) {
                auto it = digits.rbegin();
                while (it != digits.rend() && *it == '9')
                    *it++ = '0';
                if (it == digits.rend()) {
                    digits.insert(digits.begin(), '1');
                    ++exponent;
                } else {
                    ++*it;
                }
            }
        }
        while (!digits.empty() && digits.back() == '0')
            digits.pop_back();
    }
};

// Parses the output of std::to_chars in scientific form ("-1.2345e+02").
Decimal parseScientific(std::string_view text) {
    Decimal d;
    std::size_t i = 0;
    if (text[i] == '-') {
        d.negative = true;
        ++i;
    }
    const std::size_t e = text.find('e', i);
    for (; i < e; ++i)
        if (text[i] != '.')
            d.digits.push_back(text[i]);
    std::string_view exponent = text.substr(e + 1);
    if (exponent.front() == '+')
        exponent.remove_prefix(1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), d.exponent);
    if (std::all_of(d.digits.begin(), d.digits.end(), [](char c) { return c == '0'; }))
        d.digits.clear();
    return d;
}

template <typename Real> Decimal toDecimal(Real value, int precision) {
    // Enough for every digit of the exact value of a float, and for 15
    // significant digits of a double.
    char buffer[160];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value,
                                      std::chars_format::scientific, precision);
    return parseScientific(std::string_view(buffer, result.ptr));
}

void appendExponent(std::string& out, int exponent) {
    out.push_back('E');
    out.push_back(exponent < 0 ? '-' : '+');
    const int magnitude = std::abs(exponent);
    if (magnitude < 10)
        out.push_back('0');
    out += std::to_string(magnitude);
}

} // namespace

char localeDecimalSeparator() {
    const std::lconv* conventions = std::localeconv();
    if (conventions == nullptr || conventions->decimal_point == nullptr ||
        conventions->decimal_point[0] == '\0')
        return '.';
    return conventions->decimal_point[0];
}

std::string formatFixed(double value, char decimalSeparator) {
    if (!std::isfinite(value))
        throw VbError(VbError::Overflow);
    // A whole number below 10^15 keeps every digit among the fifteen, so it
    // needs no rounding: the common case of counts, keys and host colours,
    // written tens of thousands of times per answer.
    if (std::abs(value) < 1e15 && value == std::trunc(value)) {
        char buffer[24];
        char* end = buffer;
        if (value < 0)
            *end++ = '-';
        end = std::to_chars(end, buffer + sizeof buffer, static_cast<std::int64_t>(std::abs(value)))
                  .ptr;
        *end++ = decimalSeparator;
        *end++ = '0';
        *end++ = '0';
        return std::string(buffer, end);
    }
    Decimal d = toDecimal(value, 14);
    d.roundTo(d.exponent + 3); // the digit of 10^-2 is the last one kept
    std::string out;
    if (d.negative && !d.isZero())
        out.push_back('-');
    for (int power = std::max(d.exponent, 0); power >= 0; --power)
        out.push_back(d.digitAt(power));
    out.push_back(decimalSeparator);
    out.push_back(d.digitAt(-1));
    out.push_back(d.digitAt(-2));
    return out;
}

std::string floatText(float value, char decimalSeparator) {
    if (!std::isfinite(value))
        throw VbError(VbError::Overflow);
    if (value == 0.0f)
        return "0";
    constexpr int kDigits = 7;
    // Eight correctly rounded digits settle the seventh unless the eighth is
    // a 5, which may be an exact tie; only then is the exact value needed.
    Decimal d = toDecimal(value, kDigits);
    if (d.digits.size() > kDigits && d.digits[kDigits] == '5')
        d = toDecimal(value, 120);
    d.roundTo(kDigits);

    std::string out;
    if (d.negative)
        out.push_back('-');
    if (d.exponent >= kDigits || d.exponent < -4) {
        out.push_back(d.digits.front());
        if (d.digits.size() > 1) {
            out.push_back(decimalSeparator);
            out.append(d.digits, 1);
        }
        appendExponent(out, d.exponent);
        return out;
    }
    for (int power = std::max(d.exponent, 0); power >= 0; --power)
        out.push_back(d.digitAt(power));
    const int lowest = d.exponent - static_cast<int>(d.digits.size()) + 1;
    if (lowest < 0) {
        out.push_back(decimalSeparator);
        for (int power = -1; power >= lowest; --power)
            out.push_back(d.digitAt(power));
    }
    return out;
}

} // namespace huebase
