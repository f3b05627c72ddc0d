#include "color/color_choice.h"
#include "color/hsl.h"
#include "color/palette_field.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

TEST(CentredOrigin, HalvesTheDifferenceRoundingTiesToEven) {
    // 300 x 200 area at (100, 50); window 101 x 51: 199.5 -> 200, 124.5 -> 124.
    EXPECT_EQ(centredOrigin({100, 50, 400, 250}, 101, 51), (ScreenPoint{200, 124}));
    EXPECT_EQ(centredOrigin({0, 0, 1280, 1024}, 400, 300), (ScreenPoint{440, 362}));
    // A window larger than the area starts before it.
    EXPECT_EQ(centredOrigin({10, 10, 110, 60}, 200, 100), (ScreenPoint{-40, -15}));
}

TEST(PaletteField, LuminanceFallsFromWhiteToBlack) {
    constexpr int w = 254, h = 161;
    for (int x : {0, 60, 200, w - 1}) {
        EXPECT_EQ(paletteColorAt(x, 0, w, h), 0xFFFFFF) << x;
        const ColorValue bottom = paletteColorAt(x, h - 1, w, h); // luminance 0
        EXPECT_LE(RedOf(bottom) + GreenOf(bottom) + BlueOf(bottom), 1) << x;
    }
    // The middle row holds the pure hues: red at the left edge.
    EXPECT_EQ(modHSL::RGBToHSL(paletteColorAt(0, 80, w, h)), (HSLColor{0, 240, 120}));
    const HSLColor blueish =
        modHSL::RGBToHSL(paletteColorAt((w - kPaletteGreyStripe) * 2 / 3, 80, w, h));
    EXPECT_NEAR(blueish.Hue, 160, 2);
}

TEST(PaletteField, RightStripeHoldsGreysAndOutsideIsBlack) {
    constexpr int w = 254, h = 161;
    for (int y = 0; y < h; y += 20) {
        const ColorValue c = paletteColorAt(w - 1, y, w, h);
        EXPECT_EQ(RedOf(c), GreenOf(c));
        EXPECT_EQ(GreenOf(c), BlueOf(c));
    }
    EXPECT_EQ(paletteColorAt(w - 1, 80, w, h),
              composeColor(128, 128, 128)); // 120 * 255 / 240 = 127.5
    EXPECT_EQ(paletteColorAt(-1, 5, w, h), 0);
    EXPECT_EQ(paletteColorAt(5, h, w, h), 0);
}

} // namespace
} // namespace huebase
