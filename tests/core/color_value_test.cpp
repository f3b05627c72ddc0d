#include "core/color_value.h"
#include "core/lut_node.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace huebase {
namespace {

int errorNumberOf(ColorValue color) {
    try {
        GreenOf(color);
    } catch (const VbError& error) {
        return error.number();
    }
    return 0;
}

TEST(ColorComponents, SplitTheThreeBytes) {
    EXPECT_EQ(RedOf(0x123456), 0x56);
    EXPECT_EQ(GreenOf(0x123456), 0x34);
    EXPECT_EQ(BlueOf(0x123456), 0x12);
    EXPECT_EQ(RedOf(0xFFFFFF), 255);
    EXPECT_EQ(GreenOf(0xFFFFFF), 255);
    EXPECT_EQ(BlueOf(0xFFFFFF), 255);
    EXPECT_EQ(composeColor(0x56, 0x34, 0x12), 0x123456);
}

TEST(ColorComponents, UpperBitsOutsideBit24AreIgnored) {
    const ColorValue signedColor = static_cast<ColorValue>(0xFEAB12CDu); // bit 24 clear
    EXPECT_EQ(RedOf(signedColor), 0xCD);
    EXPECT_EQ(GreenOf(signedColor), 0x12);
    EXPECT_EQ(BlueOf(signedColor), 0xAB);
    EXPECT_EQ(GreenOf(static_cast<ColorValue>(0x80000000u)), 0);
}

TEST(ColorComponents, GreenOfAColourWithBit24SetOverflows) {
    EXPECT_EQ(errorNumberOf(0x01000000), VbError::Overflow);
    EXPECT_EQ(errorNumberOf(0x0100FF00), VbError::Overflow);
    EXPECT_EQ(errorNumberOf(-1), VbError::Overflow);
    EXPECT_EQ(errorNumberOf(0x00FFFFFF), 0);
}

TEST(BlendColor, MidwayRoundsHalfToEvenPerChannel) {
    EXPECT_EQ(BlendColor(0x000000, 0x0000FF, 0.5f), 0x000080); // 127.5 -> 128
    EXPECT_EQ(BlendColor(0x000000, 0x0000FD, 0.5f), 0x00007E); // 126.5 -> 126
    EXPECT_EQ(BlendColor(0x000000, 0x00FF00, 0.5f), 0x008000);
    EXPECT_EQ(BlendColor(0x000000, 0xFD0000, 0.5f), 0x7E0000);
    EXPECT_EQ(BlendColor(0x0000FF, 0x000000, 0.5f), 0x000080);
}

TEST(BlendColor, InteriorFractionsMixEachChannelLinearly) {
    EXPECT_EQ(BlendColor(0x000000, 0x0000FF, 0.25f), 0x000040);                 // 63.75
    EXPECT_EQ(BlendColor(0x102030, 0x102030, 0.3f), 0x102030);                  // no drift
    EXPECT_EQ(BlendColor(0xFF0000, 0x0000FF, 0.75f), composeColor(191, 0, 64)); // 191.25, 63.75
    // Tiny fractions still blend (no early exit besides t <= 0).
    EXPECT_EQ(BlendColor(0x000000, 0x0000FF, 0.003f), 0x000001); // 0.765
    EXPECT_EQ(BlendColor(0x000000, 0x0000FF, 0.001f), 0x000000); // 0.255
}

TEST(BlendColor, EndsReturnTheWholeValueUnchanged) {
    const ColorValue a = static_cast<ColorValue>(0xFF123456u);
    const ColorValue b = 0x7F654321;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    for (const float t : {0.0f, -0.0f, -0.5f, -inf, nan})
        EXPECT_EQ(BlendColor(a, b, t), a) << t;
    for (const float t : {1.0f, 1.5f, 1e30f, inf})
        EXPECT_EQ(BlendColor(a, b, t), b) << t;
}

TEST(BlendColor, InteriorRecomposesWithoutUpperBitsAndFailsOnBit24) {
    EXPECT_EQ(BlendColor(static_cast<ColorValue>(0xF2000000u), 0x000010, 0.5f), 0x000008);
    EXPECT_THROW(BlendColor(0x01000000, 0x000000, 0.5f), VbError);
    EXPECT_THROW(BlendColor(0x000000, 0x01000000, 0.5f), VbError);
    EXPECT_EQ(BlendColor(0x01000000, 0x000000, 0.0f), 0x01000000);
}

TEST(RampWeight, EachMethodBendsTheFraction) {
    EXPECT_FLOAT_EQ(rampWeight(MethodLin, 0.25f), 0.25f);
    EXPECT_FLOAT_EQ(rampWeight(MethodLog, 0.25f), 0.0625f);
    EXPECT_FLOAT_EQ(rampWeight(MethodExp, 0.25f), 0.5f);
    EXPECT_FLOAT_EQ(rampWeight(MethodLogPlus, 0.5f), 0.0625f);
    EXPECT_NEAR(rampWeight(MethodExpPlus, 0.25f), 0.6597540f, 1e-6f);
    EXPECT_EQ(rampWeight(MethodNone, 0.25f), 0.0f);
    EXPECT_EQ(rampWeight(6, 0.25f), 0.0f);
    EXPECT_EQ(rampWeight(255, 0.25f), 0.0f);
    for (std::uint8_t m = MethodLin; m <= MethodExpPlus; ++m) {
        EXPECT_EQ(rampWeight(m, 0.0f), 0.0f) << methodName(m);
        EXPECT_EQ(rampWeight(m, 1.0f), 1.0f) << methodName(m);
    }
}

TEST(RampWeight, MethodNamesFollowTheirCodes) {
    EXPECT_STREQ(methodName(MethodLin), "Lin");
    EXPECT_STREQ(methodName(MethodLog), "Log");
    EXPECT_STREQ(methodName(MethodExp), "Exp");
    EXPECT_STREQ(methodName(MethodLogPlus), "Log+");
    EXPECT_STREQ(methodName(MethodExpPlus), "Exp+");
    EXPECT_STREQ(methodName(MethodNone), "None");
    EXPECT_STREQ(methodName(6), "");
}

} // namespace
} // namespace huebase
