#include "util/error_test_support.h"
#include "util/vb_format.h"

#include "support/numeric_locale.h"

#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>

namespace huebase {
namespace {

using testing::errorNumberOf;

TEST(FormatFixed, TwoDecimalsRoundedHalfAwayFromZeroAtFifteenDigits) {
    // 2.675 lies just below the tie in binary, 0.125 is an exact tie; carries
    // make new digits, and a zero result has no sign. Whole numbers keep all
    // their digits below 10^15 and are rounded to fifteen above.
    const std::pair<double, const char*> rows[] = {
        {12, "12.00"},
        {-0.5, "-0.50"},
        {0.07, "0.07"},
        {1234567.891, "1234567.89"},
        {2.675, "2.68"},
        {0.125, "0.13"},
        {-0.125, "-0.13"},
        {-999.996, "-1000.00"},
        {-0.004, "0.00"},
        {-0.0, "0.00"},
        {-16777215, "-16777215.00"},
        {999999999999999, "999999999999999.00"},
        {1e15, "1000000000000000.00"},
        {1234567890123456789.0, "1234567890123460000.00"}};
    for (const auto& [value, text] : rows)
        EXPECT_EQ(formatFixed(value, '.'), text) << value;
    EXPECT_EQ(formatFixed(1e20, '.'), "100000000000000000000.00");
    EXPECT_EQ(formatFixed(-12.345, ','), "-12,35");
    EXPECT_EQ(errorNumberOf([] { formatFixed(std::numeric_limits<double>::infinity()); }),
              VbError::Overflow);
    EXPECT_EQ(errorNumberOf([] { formatFixed(std::nan("")); }), VbError::Overflow);
}

TEST(FloatText, SevenDigitsHalfAwayFromZeroExponentFormOutsidePlainRange) {
    // 1e-45f is the smallest subnormal; 1e11f is 99999997952, whose rounding
    // moves the exponent; 12345665 is an exact tie; 1.3f is 1.29999995..., where
    // the carry runs through the nines.
    const std::pair<float, const char*> rows[] = {{1234567.0f, "1234567"},
                                                  {0.33333334f, "0.3333333"},
                                                  {0.0001f, "0.0001"},
                                                  {1234566.5f, "1234567"},
                                                  {1.3f, "1.3"},
                                                  {0.99999994f, "0.9999999"},
                                                  {1e7f, "1E+07"},
                                                  {1e-5f, "1E-05"},
                                                  {1e11f, "1E+11"},
                                                  {1e-45f, "1.401298E-45"},
                                                  {12345678.0f, "1.234568E+07"},
                                                  {12345665.0f, "1.234567E+07"}};
    for (const auto& [value, text] : rows)
        EXPECT_EQ(floatText(value, '.'), text) << value;
    EXPECT_EQ(floatText(-0.0f, '.'), "0");
    EXPECT_EQ(floatText(1.5e-7f, ','), "1,5E-07");
    EXPECT_EQ(errorNumberOf([] { floatText(std::numeric_limits<float>::infinity()); }),
              VbError::Overflow);
}

// The float nearest to a decimal of up to six significant digits must read
// back as the same float: every digit is in its place and none is lost.
TEST(FloatText, SixDigitDecimalsReadBackAsTheSameFloat) {
    for (int mantissa = -999999; mantissa <= 999999; mantissa += 37) {
        for (const int exponent : {-40, -12, -6, -4, 0, 3, 6, 9, 30}) {
            const std::string decimal = std::to_string(mantissa) + "e" + std::to_string(exponent);
            float value = 0;
            std::from_chars(decimal.data(), decimal.data() + decimal.size(), value);
            const std::string text = floatText(value, '.');
            float back = 1;
            const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), back);
            ASSERT_TRUE(ec == std::errc() && end == text.data() + text.size()) << text;
            ASSERT_EQ(back, value) << decimal << " -> " << text;
        }
    }
}

TEST(LocaleDecimalSeparator, IsAPointInTheClassicLocaleAndFollowsADecimalComma) {
    testing::NumericLocale locale;
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(localeDecimalSeparator(), '.');
    EXPECT_EQ(formatFixed(1.5), "1.50");
    EXPECT_EQ(floatText(0.25f), "0.25");
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    EXPECT_EQ(localeDecimalSeparator(), ',');
    EXPECT_EQ(formatFixed(1.5), "1,50");
    EXPECT_EQ(floatText(0.25f), "0,25");
}

} // namespace
} // namespace huebase
