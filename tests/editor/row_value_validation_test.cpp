#include "editor/numeric_text.h"
#include "editor/row_value_validation.h"

#include <gtest/gtest.h>

#include <limits>

namespace huebase {
namespace {

TEST(NumericText, ReadsClassicNumberFormsAndTheLocaleSeparator) {
    const struct {
        const char* text;
        char separator;
        float expected;
    } rows[] = {{"  12.5\t", '.', 12.5f}, {"+7", '.', 7.0f},     {"-.25", '.', -0.25f},
                {"3.", '.', 3.0f},        {"1E3", '.', 1000.0f}, {"2.5d-1", '.', 0.25f},
                {"1e+02", '.', 100.0f},   {"1,5", ',', 1.5f},    {"1.5", ',', 1.5f}};
    for (const auto& row : rows)
        EXPECT_EQ(NumericText::toSingle(row.text, row.separator), row.expected) << row.text;
}

TEST(NumericText, RefusesTextThatIsNotANumber) {
    for (const char* text : {"", "  ", "abc", "12abc", ".", "-", "--5", "1.2.3", "1e", "1e+", "1 2",
                             "0x10", "1e39", "1,5"})
        EXPECT_FALSE(NumericText::toSingle(text, '.').has_value()) << '"' << text << '"';
    EXPECT_FALSE(NumericText::toSingle("1,5.2", ',').has_value());
}

TEST(RowValueValidation, KeepsValuesInsideAndMovesTheRestOneUnitInsideUpperTestFirst) {
    constexpr float kInf = std::numeric_limits<float>::infinity();
    constexpr float kMax = std::numeric_limits<float>::max();
    const struct {
        const char* text;
        float lower, upper;
        char separator;
        const char* shown;
        float stored;
    } rows[] = {
        {" 42.5 ", 0, 100, '.', " 42.5 ", 42.5f}, // kept as typed
        {"100", 0, 100, '.', "99", 99.0f},
        {"250", 0, 100, '.', "99", 99.0f},
        {"0", 0, 100, '.', "1", 1.0f},
        {"-7", 0, 100, '.', "1", 1.0f},
        {"0.7", 0, 0.5f, '.', "1", 1.0f}, // -0.5, then 1: above the upper bound
        {"20", 0, 10.5f, ',', "9,5", 9.5f},
        // Seven significant digits: the stored value is what the box shows.
        {"200000000", 0, 123456789.0f, '.', "1.234568E+08", 123456800.0f},
        // Infinite and extreme bounds clamp to the largest float, never raise.
        {"5", kInf, kInf, '.', "3.402823E+38", 3.402823e38f},
        {"5", -kInf, -kInf, '.', "-3.402823E+38", -3.402823e38f},
        {"5", -kInf, kInf, '.', "5", 5.0f},
        {"3e38", kMax, kMax, '.', "3.402823E+38", 3.402823e38f},
    };
    for (const auto& row : rows)
        EXPECT_EQ(validateRowValue(row.text, row.lower, row.upper, row.separator),
                  (ValidatedValue{row.shown, row.stored}))
            << row.text << " in " << row.lower << ".." << row.upper;
    EXPECT_FALSE(validateRowValue("abc", 0, 100, '.').has_value());
}

} // namespace
} // namespace huebase
