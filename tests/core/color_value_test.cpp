#include "core/color_value.h"
#include "core/lut_node.h"
#include "util/error_test_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace huebase {
namespace {

using testing::errorNumberOf;

TEST(ColorComponents, SplitTheBytesIgnoringUpperBitsButGreenOfBit24Overflows) {
    EXPECT_EQ(RedOf(0x123456), 0x56);
    EXPECT_EQ(GreenOf(0x123456), 0x34);
    EXPECT_EQ(BlueOf(0x123456), 0x12);
    EXPECT_EQ(composeColor(0x56, 0x34, 0x12), 0x123456);
    const ColorValue upper = static_cast<ColorValue>(0xFEAB12CDu); // bit 24 clear
    EXPECT_EQ(RedOf(upper), 0xCD);
    EXPECT_EQ(GreenOf(upper), 0x12);
    EXPECT_EQ(BlueOf(upper), 0xAB);
    EXPECT_EQ(GreenOf(static_cast<ColorValue>(0x80000000u)), 0);
    for (const ColorValue bit24 : {0x01000000, 0x0100FF00, -1})
        EXPECT_EQ(errorNumberOf([&] { GreenOf(bit24); }), VbError::Overflow) << bit24;
}

TEST(BlendColor, MixesEachChannelLinearlyAndRoundsHalfToEven) {
    // 127.5 gives 128 and 126.5 gives 126; 0.75 of the way from red to blue is
    // 63.75 red and 191.25 blue; tiny fractions still blend; a blend drops
    // the upper bits.
    const std::tuple<ColorValue, ColorValue, float, ColorValue> rows[] = {
        {0x000000, 0x0000FF, 0.5f, 0x000080},

        {0x000000, 0x0000FD, 0.5f, 0x00007E},
        {0x000000, 0x00FD00, 0.5f, 0x007E00},

        {0x0000FF, 0xFF0000, 0.75f, 0xBF0040},
        {0x102030, 0x102030, 0.3f, 0x102030},
        {0x000000, 0x0000FF, 0.003f, 0x000001},

        {static_cast<ColorValue>(0xF2000000u), 0x10, 0.5f, 8}};
    for (const auto& [a, b, t, blend] : rows)
        EXPECT_EQ(BlendColor(a, b, t), blend) << std::hex << a << " " << b << " " << t;
}

TEST(BlendColor, EndsReturnTheWholeValueUnchangedAndInteriorBit24Fails) {
    const ColorValue a = static_cast<ColorValue>(0xFF123456u);
    const ColorValue b = 0x7F654321;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    for (const float t : {0.0f, -0.0f, -0.5f, -inf, nan})
        EXPECT_EQ(BlendColor(a, b, t), a) << t;
    for (const float t : {1.0f, 1.5f, 1e30f, inf})
        EXPECT_EQ(BlendColor(a, b, t), b) << t;
    EXPECT_EQ(errorNumberOf([] { BlendColor(0x01000000, 0, 0.5f); }), VbError::Overflow);
    EXPECT_EQ(errorNumberOf([] { BlendColor(0, 0x01000000, 0.5f); }), VbError::Overflow);
}

TEST(RampWeight, MethodsAreNamedByCodeAndRampFromZeroToOne) {
    const char* names[] = {"Lin", "Log", "Exp", "Log+", "Exp+", "None", ""};
    for (std::uint8_t m = 0; m < 7; ++m) {
        EXPECT_STREQ(methodName(m), names[m]);
        EXPECT_EQ(rampWeight(m, 0.0f), 0.0f) << names[m];
        EXPECT_EQ(rampWeight(m, 1.0f), m < MethodNone ? 1.0f : 0.0f) << names[m];
    }
    EXPECT_EQ(rampWeight(255, 0.25f), 0.0f);
}

} // namespace
} // namespace huebase
