#include "editor/numeric_text.h"
#include "editor/row_value_validation.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

TEST(NumericText, AcceptsClassicNumberForms) {
    EXPECT_EQ(NumericText::toSingle("  12.5\t"), 12.5f);
    EXPECT_EQ(NumericText::toSingle("+7"), 7.0f);
    EXPECT_EQ(NumericText::toSingle("-.25"), -0.25f);
    EXPECT_EQ(NumericText::toSingle("3."), 3.0f);
    EXPECT_EQ(NumericText::toSingle("1E3"), 1000.0f);
    EXPECT_EQ(NumericText::toSingle("2.5d-1"), 0.25f);
    EXPECT_EQ(NumericText::toSingle("1e+02"), 100.0f);
}

TEST(NumericText, RefusesTextThatIsNotANumber) {
    for (const char* text :
         {"", "  ", "abc", "12abc", ".", "-", "--5", "1.2.3", "1e", "1e+", "1 2", "0x10", "1e39"}) {
        EXPECT_FALSE(NumericText::toSingle(text).has_value()) << '"' << text << '"';
    }
}

TEST(NumericText, ReadsTheLocaleSeparatorBesideThePoint) {
    EXPECT_EQ(NumericText::toSingle("1,5", ','), 1.5f);
    EXPECT_EQ(NumericText::toSingle("1.5", ','), 1.5f);
    EXPECT_FALSE(NumericText::toSingle("1,5", '.').has_value());
    EXPECT_FALSE(NumericText::toSingle("1,5.2", ',').has_value());
}

TEST(RowValueValidation, NonNumericTextChangesNothing) {
    EXPECT_FALSE(validateRowValue("abc", 0, 100, '.').has_value());
}

TEST(RowValueValidation, ValueInsideTheBoundsIsKeptAsTyped) {
    EXPECT_EQ(validateRowValue(" 42.5 ", 0, 100, '.'), (ValidatedValue{" 42.5 ", 42.5f}));
}

TEST(RowValueValidation, BoundsThemselvesAreMovedInsideByOneUnit) {
    EXPECT_EQ(validateRowValue("100", 0, 100, '.'), (ValidatedValue{"99", 99.0f}));
    EXPECT_EQ(validateRowValue("250", 0, 100, '.'), (ValidatedValue{"99", 99.0f}));
    EXPECT_EQ(validateRowValue("0", 0, 100, '.'), (ValidatedValue{"1", 1.0f}));
    EXPECT_EQ(validateRowValue("-7", 0, 100, '.'), (ValidatedValue{"1", 1.0f}));
}

TEST(RowValueValidation, UpperTestRunsFirstSoNarrowBoundsEndAboveTheUpperBound) {
    EXPECT_EQ(validateRowValue("0.7", 0, 0.5f, '.'), (ValidatedValue{"1", 1.0f}));
}

TEST(RowValueValidation, ReplacedTextUsesTheLocaleSeparatorAndReadsBackExactly) {
    EXPECT_EQ(validateRowValue("20", 0, 10.5f, ','), (ValidatedValue{"9,5", 9.5f}));
    // Seven significant digits: the stored value is what the box shows.
    const auto big = validateRowValue("200000000", 0, 123456789.0f, '.');
    ASSERT_TRUE(big.has_value());
    EXPECT_EQ(big->text, "1.234568E+08");
    EXPECT_EQ(big->value, 123456800.0f);
}

} // namespace
} // namespace huebase
