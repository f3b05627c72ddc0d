#include "color/hsl.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace huebase {
namespace {

using modHSL::HSLToRGB;
using modHSL::RGBToHSL;

ColorValue rgb(int r, int g, int b) {
    return composeColor(r, g, b);
}

// Black's L 0.5 rounds to 0 and white's 240.5 to 240; red takes the "L above
// 120" branch; (255, 0, 1) has hue 239.84, shown as 240 without a wrap. Back
// to RGB a grey ignores its hue, and the hues drift by design.
TEST(Hsl, ConvertsBothWaysWithTheClassicRounding) {
    const struct {
        ColorValue color;
        HSLColor hsl;
    } toHsl[] = {{rgb(0, 0, 0), {160, 0, 0}},
                 {rgb(255, 255, 255), {160, 0, 240}},
                 {rgb(128, 128, 128), {160, 0, 121}},
                 {rgb(255, 0, 0), {0, 240, 120}},
                 {rgb(0, 255, 0), {80, 240, 120}},
                 {rgb(0, 0, 255), {160, 240, 120}},
                 {rgb(255, 128, 0), {20, 240, 120}},
                 {rgb(10, 20, 30), {140, 120, 19}},
                 {rgb(255, 0, 1), {240, 240, 120}},
                 // Dark colours take the lower saturation formula; its rounding
                 // term decides these.
                 {rgb(1, 6, 5), {112, 172, 4}},
                 {rgb(1, 63, 20), {92, 233, 31}}};
    for (const auto& row : toHsl)
        EXPECT_EQ(RGBToHSL(row.color), row.hsl) << std::hex << row.color;
    EXPECT_EQ(HSLToRGB({0, 0, 240}), 0xFFFFFF);
    EXPECT_EQ(HSLToRGB({160, 0, 240}), 0xFFFFFF);
    EXPECT_EQ(HSLToRGB({160, 0, 121}), rgb(129, 129, 129));
    EXPECT_EQ(HSLToRGB({77, 0, 0}), 0);
    EXPECT_EQ(HSLToRGB({0, 240, 120}), rgb(255, 1, 0));
    EXPECT_EQ(HSLToRGB({80, 240, 120}), rgb(0, 255, 1));
}

TEST(Hsl, RoundTripStaysInRangeAndCloseOverTheCube) {
    for (int r = 0; r < 256; r += 15)
        for (int g = 0; g < 256; g += 15)
            for (int b = 0; b < 256; b += 15) {
                const HSLColor hsl = RGBToHSL(rgb(r, g, b));
                for (const int v : {int(hsl.Hue), int(hsl.Saturation), int(hsl.Luminance)})
                    ASSERT_TRUE(v >= 0 && v <= 240) << r << ',' << g << ',' << b;
                const ColorValue back = HSLToRGB(hsl);
                const int drift = std::max({std::abs(RedOf(back) - r), std::abs(GreenOf(back) - g),
                                            std::abs(BlueOf(back) - b)});
                EXPECT_LE(drift, 6) << r << ',' << g << ',' << b;
            }
}

TEST(Hsl, HueToRgbSegmentsWrapOnce) {
    // m1 = 0, m2 = 240: rising edge with the +20 term, plateau, falling edge, floor.
    const double rows[][2] = {{0, 0.5}, {20, 120.5},   {100, 240},   {150, 60.5},
                              {200, 0}, {-220, 120.5}, {260, 120.5}, {500, 0}};
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(modHSL::HueToRGB(0, 240, row[0]), row[1]) << row[0];
}

TEST(Hsl, ContrastTextAndLuminanceSteps) {
    EXPECT_EQ(modHSL::ContrastTextColor(rgb(255, 0, 0)), 0xFFFFFF); // L 120
    EXPECT_EQ(modHSL::ContrastTextColor(rgb(128, 128, 128)), 0);    // L 121
    // Not a valid colour (bit 24 set): converting it would overflow.
    const ColorValue invalid = 0x01123456;
    EXPECT_EQ(modHSL::LightenColor(invalid, 0.0f), invalid);
    EXPECT_EQ(modHSL::DarkenColor(invalid, -0.5f), invalid);

    EXPECT_EQ(RGBToHSL(modHSL::DarkenColor(rgb(255, 0, 0), 0.1f)), (HSLColor{0, 240, 96}));
    for (const ColorValue c : {rgb(255, 0, 0), rgb(12, 200, 90), rgb(128, 128, 128), 0}) {
        EXPECT_EQ(modHSL::LightenColor(c, 5.0f), 0xFFFFFF);
        // Luminance 0 keeps the hue's rounding term: at most one step above black.
        const ColorValue dark = modHSL::DarkenColor(c, 5.0f);
        EXPECT_LE(RedOf(dark) + GreenOf(dark) + BlueOf(dark), 1) << std::hex << dark;
    }
    EXPECT_EQ(modHSL::DarkenColor(rgb(128, 128, 128), 5.0f), 0);
}

} // namespace
} // namespace huebase
