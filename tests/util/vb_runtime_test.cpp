#include "util/error_test_support.h"
#include "util/vb_numeric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace huebase {
namespace {

using testing::errorNumberOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(IntegerConversion, RoundsHalfEvenToTheBoundsAndOverflowsBeyondThem) {
    EXPECT_EQ(roundHalfEven(-2.5), -2.0);
    EXPECT_EQ(roundHalfEven(2.5000001), 3.0);
    EXPECT_TRUE(std::signbit(roundHalfEven(-0.5)));
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768); // the tie goes to the even bound
    EXPECT_EQ(toInt16(254.5), 254);
    EXPECT_EQ(toInt16(255.5), 256);
    EXPECT_EQ(toInt32(2147483647.4), 2147483647);
    EXPECT_EQ(toInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(checkedInt16(32767), 32767);
    EXPECT_EQ(checkedInt32(-2147483648LL), std::numeric_limits<std::int32_t>::min());
    for (const double x : {32767.5, -32769.5, kNaN, -kInf})
        EXPECT_EQ(errorNumberOf([&] { toInt16(x); }), VbError::Overflow) << x;
    for (const double x : {2147483647.5, -2147483649.0, kNaN})
        EXPECT_EQ(errorNumberOf([&] { toInt32(x); }), VbError::Overflow) << x;
    EXPECT_EQ(errorNumberOf([] { checkedInt16(32768); }), VbError::Overflow);
    EXPECT_EQ(errorNumberOf([] { checkedInt16(-32769); }), VbError::Overflow);
    EXPECT_EQ(errorNumberOf([] { checkedInt32(2147483648LL); }), VbError::Overflow);
}

TEST(VbErrorText, MessagesReadErrorNumberDotClassicDescription) {
    const std::pair<int, const char*> known[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {70, "Permission denied"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {457, "This key is already associated with an element of this collection"},
        {1000, "Application-defined or object-defined error"},
    };
    for (const auto& [number, description] : known) {
        const VbError error(number);
        EXPECT_EQ(error.number(), number);
        EXPECT_STREQ(error.what(), description);
        EXPECT_EQ(error.message(), "Error: " + std::to_string(number) + ". " + description);
    }
    EXPECT_EQ(VbError(1004, "Custom text").message(), "Error: 1004. Custom text");
}

} // namespace
} // namespace huebase
