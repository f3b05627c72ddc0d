#include "color/hsl.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace huebase {
namespace {

using modHSL::HSLToRGB;
using modHSL::RGBToHSL;

ColorValue rgb(int r, int g, int b) {
    return composeColor(r, g, b);
}

TEST(RgbToHsl, GreysHaveHue160AndNoSaturation) {
    EXPECT_EQ(RGBToHSL(rgb(0, 0, 0)), (HSLColor{160, 0, 0}));         // L 0.5 rounds to 0
    EXPECT_EQ(RGBToHSL(rgb(255, 255, 255)), (HSLColor{160, 0, 240})); // L 240.5 rounds to 240
    EXPECT_EQ(RGBToHSL(rgb(128, 128, 128)), (HSLColor{160, 0, 121}));
}

TEST(RgbToHsl, PrimariesAndOrange) {
    EXPECT_EQ(RGBToHSL(rgb(255, 0, 0)), (HSLColor{0, 240, 120}));
    EXPECT_EQ(RGBToHSL(rgb(0, 255, 0)), (HSLColor{80, 240, 120}));
    EXPECT_EQ(RGBToHSL(rgb(0, 0, 255)), (HSLColor{160, 240, 120}));
    EXPECT_EQ(RGBToHSL(rgb(255, 128, 0)), (HSLColor{20, 240, 120}));
}

TEST(RgbToHsl, DarkColourAndHueJustBelowTheWrap) {
    EXPECT_EQ(RGBToHSL(rgb(10, 20, 30)), (HSLColor{140, 120, 19}));
    // 239.84 rounds to 240, one past the hue box's range, and is not wrapped.
    EXPECT_EQ(RGBToHSL(rgb(255, 0, 1)).Hue, 240);
}

TEST(HslToRgb, GreysIgnoreTheHue) {
    EXPECT_EQ(HSLToRGB({0, 0, 240}), 0xFFFFFF);
    EXPECT_EQ(HSLToRGB({160, 0, 240}), 0xFFFFFF);
    EXPECT_EQ(HSLToRGB({160, 0, 121}), rgb(129, 129, 129));
    EXPECT_EQ(HSLToRGB({77, 0, 0}), 0);
}

TEST(HslToRgb, RoundTripKeepsTheClassicDrift) {
    EXPECT_EQ(HSLToRGB({0, 240, 120}), rgb(255, 1, 0));
    EXPECT_EQ(HSLToRGB({80, 240, 120}), rgb(0, 255, 1));
}

TEST(HslToRgb, RoundTripStaysCloseOverTheWholeCube) {
    for (int r = 0; r < 256; r += 15)
        for (int g = 0; g < 256; g += 15)
            for (int b = 0; b < 256; b += 15) {
                const ColorValue c = rgb(r, g, b);
                const HSLColor hsl = RGBToHSL(c);
                ASSERT_GE(hsl.Hue, 0);
                ASSERT_LE(hsl.Hue, 240);
                ASSERT_GE(hsl.Saturation, 0);
                ASSERT_LE(hsl.Saturation, 240);
                ASSERT_GE(hsl.Luminance, 0);
                ASSERT_LE(hsl.Luminance, 240);
                const ColorValue back = HSLToRGB(hsl);
                // The 0..240 scale is coarser than 0..255, and the rounding
                // terms add a little more; a few units per channel at most.
                EXPECT_LE(std::abs(RedOf(back) - r), 6) << r << ',' << g << ',' << b;
                EXPECT_LE(std::abs(GreenOf(back) - g), 6) << r << ',' << g << ',' << b;
                EXPECT_LE(std::abs(BlueOf(back) - b), 6) << r << ',' << g << ',' << b;
            }
}

TEST(HueToRgb, SegmentsAndSingleWrap) {
    // m1 = 0, m2 = 240: rising edge with the +20 rounding term, plateau, falling edge, floor.
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 0), 0.5);
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 20), 120.5);
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 100), 240);
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 150), 60.5);
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 200), 0);
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, -220), 120.5); // -220 + 240 = 20
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 260), 120.5);  // 260 - 240 = 20
    EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, 500), 0);      // wrapped once only: 260
}

TEST(ContrastTextColor, WhiteUpToLuminance120) {
    EXPECT_EQ(modHSL::ContrastTextColor(rgb(255, 0, 0)), 0xFFFFFF); // L 120
    EXPECT_EQ(modHSL::ContrastTextColor(rgb(128, 128, 128)), 0);    // L 121
    EXPECT_EQ(modHSL::ContrastTextColor(0), 0xFFFFFF);
    EXPECT_EQ(modHSL::ContrastTextColor(0xFFFFFF), 0);
}

TEST(LightenDarken, NonPositiveAmountReturnsTheInputUntouched) {
    // Not a valid colour (bit 24 set): converting it would overflow.
    const ColorValue invalid = 0x01000000 | 0x123456;
    EXPECT_EQ(modHSL::LightenColor(invalid, 0.0f), invalid);
    EXPECT_EQ(modHSL::LightenColor(invalid, -0.5f), invalid);
    EXPECT_EQ(modHSL::DarkenColor(invalid, 0.0f), invalid);
}

TEST(LightenDarken, LargeAmountsReachTheEndsOfTheLuminanceScale) {
    for (const ColorValue c : {rgb(255, 0, 0), rgb(12, 200, 90), rgb(128, 128, 128), 0}) {
        EXPECT_EQ(modHSL::LightenColor(c, 5.0f), 0xFFFFFF);
        // Luminance 0 keeps the hue's rounding term: at most one step above black.
        const ColorValue dark = modHSL::DarkenColor(c, 5.0f);
        EXPECT_LE(RedOf(dark) + GreenOf(dark) + BlueOf(dark), 1) << std::hex << dark;
    }
    EXPECT_EQ(modHSL::DarkenColor(rgb(128, 128, 128), 5.0f), 0);
}

TEST(LightenDarken, StepsAreFractionsOfTheLuminanceScale) {
    // Black lightened by 0.05 steps: luminance 12, 24, 36, 48 -> 12.75, 25.5, 38.25, 51.
    EXPECT_EQ(modHSL::LightenColor(0, 0.05f), rgb(13, 13, 13));
    EXPECT_EQ(modHSL::LightenColor(0, 0.10f), rgb(26, 26, 26));
    EXPECT_EQ(modHSL::LightenColor(0, 0.15f), rgb(38, 38, 38));
    EXPECT_EQ(modHSL::LightenColor(0, 0.20f), rgb(51, 51, 51));
    // Red (L 120) darkened by 0.1 keeps hue and saturation: (0, 240, 96).
    EXPECT_EQ(RGBToHSL(modHSL::DarkenColor(rgb(255, 0, 0), 0.1f)), (HSLColor{0, 240, 96}));
    // A grey stays a grey.
    const HSLColor lighter = RGBToHSL(modHSL::LightenColor(rgb(128, 128, 128), 0.05f));
    EXPECT_EQ(lighter.Saturation, 0);
    EXPECT_EQ(lighter.Luminance, 133);
}

} // namespace
} // namespace huebase
