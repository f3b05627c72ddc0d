#include "util/vb_error.h"
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

int errorNumberOf(auto&& call) {
    try {
        call();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

TEST(FormatFixed, TwoDecimalsAtLeastOneIntegerDigitNoGrouping) {
    EXPECT_EQ(formatFixed(12, '.'), "12.00");
    EXPECT_EQ(formatFixed(16711680, '.'), "16711680.00");
    EXPECT_EQ(formatFixed(16777215, '.'), "16777215.00");
    EXPECT_EQ(formatFixed(-0.5, '.'), "-0.50");
    EXPECT_EQ(formatFixed(0.07, '.'), "0.07");
    EXPECT_EQ(formatFixed(0, '.'), "0.00");
    EXPECT_EQ(formatFixed(1234567.891, '.'), "1234567.89");
    EXPECT_EQ(formatFixed(1e20, '.'), "100000000000000000000.00");
}

TEST(FormatFixed, RoundsTheFifteenDigitValueHalfAwayFromZero) {
    EXPECT_EQ(formatFixed(2.675, '.'), "2.68"); // binary value 2.67499999...
    EXPECT_EQ(formatFixed(1.005, '.'), "1.01");
    EXPECT_EQ(formatFixed(0.125, '.'), "0.13"); // an exact tie goes up, not to even
    EXPECT_EQ(formatFixed(-0.125, '.'), "-0.13");
    EXPECT_EQ(formatFixed(0.005, '.'), "0.01");
    EXPECT_EQ(formatFixed(0.0049, '.'), "0.00");
    EXPECT_EQ(formatFixed(2.674999, '.'), "2.67");
    EXPECT_EQ(formatFixed(0.1 + 0.2, '.'), "0.30");
}

TEST(FormatFixed, CarriesIntoNewDigitsAndDropsTheSignOfZero) {
    EXPECT_EQ(formatFixed(9.995, '.'), "10.00");
    EXPECT_EQ(formatFixed(99.999, '.'), "100.00");
    EXPECT_EQ(formatFixed(-999.996, '.'), "-1000.00");
    EXPECT_EQ(formatFixed(-0.004, '.'), "0.00");
    EXPECT_EQ(formatFixed(-0.0, '.'), "0.00");
    EXPECT_EQ(formatFixed(-1e-300, '.'), "0.00");
}

TEST(FormatFixed, UsesTheGivenSeparatorAndRejectsNonFiniteValues) {
    EXPECT_EQ(formatFixed(-12.345, ','), "-12,35");
    EXPECT_EQ(formatFixed(3, ','), "3,00");
    EXPECT_EQ(errorNumberOf([] { formatFixed(std::numeric_limits<double>::infinity()); }),
              VbError::Overflow);
    EXPECT_EQ(errorNumberOf([] { formatFixed(std::nan("")); }), VbError::Overflow);
}

TEST(FloatText, PlainFormUpToSevenIntegerDigits) {
    EXPECT_EQ(floatText(1234567.0f, '.'), "1234567");
    EXPECT_EQ(floatText(9999999.0f, '.'), "9999999");
    EXPECT_EQ(floatText(0.1f, '.'), "0.1");
    EXPECT_EQ(floatText(100.25f, '.'), "100.25");
    EXPECT_EQ(floatText(1.0f / 3, '.'), "0.3333333");
    EXPECT_EQ(floatText(-2.5f, '.'), "-2.5");
    EXPECT_EQ(floatText(12.5f, '.'), "12.5");
    EXPECT_EQ(floatText(0.0001f, '.'), "0.0001");
    EXPECT_EQ(floatText(0.00012345f, '.'), "0.00012345");
    EXPECT_EQ(floatText(0.0f, '.'), "0");
    EXPECT_EQ(floatText(-0.0f, '.'), "0");
}

TEST(FloatText, ExponentFormForLargeAndTinyMagnitudes) {
    EXPECT_EQ(floatText(12345678.0f, '.'), "1.234568E+07");
    EXPECT_EQ(floatText(1e7f, '.'), "1E+07");
    EXPECT_EQ(floatText(-3.4e38f, '.'), "-3.4E+38");
    EXPECT_EQ(floatText(1e-5f, '.'), "1E-05");
    EXPECT_EQ(floatText(1.5e-7f, '.'), "1.5E-07");
    EXPECT_EQ(floatText(-9.87654321e-20f, '.'), "-9.876543E-20");
    EXPECT_EQ(floatText(1e-45f, '.'), "1.401298E-45"); // smallest subnormal
    EXPECT_EQ(floatText(1e11f, '.'), "1E+11");         // 99999997952: rounding moves the exponent
}

TEST(FloatText, SeventhDigitRoundsHalfAwayFromZeroOnTheExactValue) {
    EXPECT_EQ(floatText(12345665.0f, '.'), "1.234567E+07"); // an exact tie
    EXPECT_EQ(floatText(-12345665.0f, '.'), "-1.234567E+07");
    EXPECT_EQ(floatText(1234566.5f, '.'), "1234567");
    EXPECT_EQ(floatText(16777215.0f, '.'), "1.677722E+07");
    EXPECT_EQ(floatText(1.3f, '.'), "1.3"); // 1.29999995...: the carry runs through the nines
    EXPECT_EQ(floatText(0.99999994f, '.'), "0.9999999");
}

TEST(FloatText, UsesTheGivenSeparatorAndRejectsNonFiniteValues) {
    EXPECT_EQ(floatText(100.25f, ','), "100,25");
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

TEST(LocaleDecimalSeparator, IsAPointInTheClassicLocale) {
    testing::NumericLocale locale;
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(localeDecimalSeparator(), '.');
    EXPECT_EQ(formatFixed(1.5), "1.50");
    EXPECT_EQ(floatText(0.25f), "0.25");
}

TEST(LocaleDecimalSeparator, FollowsALocaleWithADecimalComma) {
    testing::NumericLocale locale;
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    EXPECT_EQ(localeDecimalSeparator(), ',');
    EXPECT_EQ(formatFixed(1.5), "1,50");
    EXPECT_EQ(floatText(0.25f), "0,25");
}

} // namespace
} // namespace huebase
