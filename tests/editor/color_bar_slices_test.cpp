#include "editor/color_bar_slices.h"
#include "editor/editor_fakes.h"
#include "editor/node_rows.h"
#include "util/vb_numeric.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

using testing::node;

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;

ColorValue grey(int level) {
    return composeColor(level, level, level);
}

ColorBarSlices barOf(const LutTable& table, float dataMin, float dataMax) {
    NodeRows rows;
    rows.fill(table);
    return ColorBarSlices(rows, dataMin, dataMax);
}

// The slice that starts at x (the first one found).
ColorValue sliceAt(const ColorBarSlices& bar, float x) {
    for (const ColorSlice& s : bar.slices())
        if (s.x0 == x)
            return s.color;
    ADD_FAILURE() << "no slice starts at " << x;
    return -1;
}

TEST(ColorBarSlices, NoneIntervalIsOneFlatRectangleInTheLowerColour) {
    const auto bar = barOf({node(0, MethodNone, 0x0000FF), node(100, MethodLin, kWhite)}, 0, 100);
    EXPECT_EQ(bar.slices(), (std::vector<ColorSlice>{{0, 100, 0x0000FF}}));
}

TEST(ColorBarSlices, SlicesAreAFixedFractionOfTheRangeAndCoverEachInterval) {
    // Range 512: slices 2 units wide. Interval 0..128 needs 64 slices plus the
    // closing one at k = N; interval 128..512 needs 192 plus one.
    const auto bar = barOf(
        {node(0, MethodLin, kBlack), node(128, MethodLin, kWhite), node(512, 0, kBlack)}, 0, 512);
    EXPECT_EQ(bar.step(), 2.0f);
    ASSERT_EQ(bar.slices().size(), 65u + 193u);
    EXPECT_EQ(bar.slices()[0], (ColorSlice{0, 2, kBlack}));
    EXPECT_EQ(bar.slices()[32], (ColorSlice{64, 66, grey(128)}));
    EXPECT_EQ(bar.slices()[64], (ColorSlice{128, 130, kWhite}))
        << "k = N reaches past the interval";
    EXPECT_EQ(bar.slices()[65], (ColorSlice{128, 130, kWhite}))
        << "the next interval paints over it";
    EXPECT_EQ(bar.slices().back(), (ColorSlice{512, 514, kBlack}));
}

TEST(ColorBarSlices, SliceCountRoundsHalfToEven) {
    // step 1: 2.5 slices round to 2 (three rectangles), 3.5 to 4 (five).
    EXPECT_EQ(barOf({node(0, 0, 0), node(2.5f, 0, kWhite)}, 0, 256).slices().size(), 3u);
    EXPECT_EQ(barOf({node(0, 0, 0), node(3.5f, 0, kWhite)}, 0, 256).slices().size(), 5u);
}

TEST(ColorBarSlices, RampWeightsBendTheBlendAsTheMethodSays) {
    // step 1 over an interval of 256: the slice at 128 is mid-interval.
    const auto weightedGrey = [](std::uint8_t method) {
        return sliceAt(barOf({node(0, method, kBlack), node(256, 0, kWhite)}, 0, 256), 128);
    };
    EXPECT_EQ(weightedGrey(MethodLin), grey(128));
    EXPECT_EQ(weightedGrey(MethodLog), grey(64)) << "quarter grey";
    EXPECT_EQ(weightedGrey(MethodExp), grey(180)) << "about 71 %";
    EXPECT_EQ(weightedGrey(MethodLogPlus), grey(16));
    EXPECT_EQ(weightedGrey(MethodExpPlus), grey(207));
}

TEST(ColorBarSlices, EmptyDataRangeLeavesOnlyFlatIntervals) {
    const auto bar =
        barOf({node(5, MethodLin, kBlack), node(5, MethodNone, 0x00FF00), node(5, 0, 0)}, 5, 5);
    EXPECT_EQ(bar.slices(), (std::vector<ColorSlice>{{5, 5, 0x00FF00}}));
}

TEST(ColorBarSlices, ZeroLengthIntervalGetsOneSliceInItsLowerColour) {
    const auto bar =
        barOf({node(0, 0, 0x0000FF), node(0, 0, kWhite), node(256, 0, kWhite)}, 0, 256);
    EXPECT_EQ(bar.slices().front(), (ColorSlice{0, 1, 0x0000FF}));
    EXPECT_EQ(bar.slices().size(), 1u + 257u);
}

} // namespace
} // namespace huebase
