#include "color/screen_sampler.h"

#include "fake_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace huebase {
namespace {

struct Sampling : ::testing::Test {
    testing::FakeScreen screen{100, 80}; // pixel (x, y) is (10 + x, 20 + y, 30)
    ScreenSampler sampler{screen};
};

TEST_F(Sampling, EachModeReadsOnlyWhenThePointerMovedFromItsOwnLastPosition) {
    // The remembered positions start at (0, 0): a pointer resting there gives nothing.
    EXPECT_FALSE(sampler.pickTick().has_value());
    EXPECT_TRUE(screen.reads().empty());
    screen.movePointer(30, 40);
    EXPECT_EQ(sampler.pickTick(), composeColor(40, 60, 30));
    screen.paint([](ScreenPoint) { return 0x00FF00; }); // new content, same position
    EXPECT_FALSE(sampler.pickTick().has_value());
    screen.movePointer(31, 40);
    EXPECT_EQ(sampler.pickTick(), 0x00FF00);
    EXPECT_TRUE(sampler.blockTick().has_value()); // the pick did not use up the block's move
    EXPECT_FALSE(sampler.blockTick().has_value());
}

TEST_F(Sampling, BlockCellsRunRowByRowAroundThePointer) {
    screen.movePointer(50, 60);
    const auto block = sampler.blockTick();
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ((*block)[4], composeColor(62, 78, 30)); // (52, 58)
    EXPECT_EQ((*block)[kBlockCentreCell], composeColor(60, 80, 30));
    EXPECT_EQ((*block)[20], composeColor(58, 82, 30)); // (48, 62)
    EXPECT_EQ(screen.reads().size(), 25u);
}

TEST_F(Sampling, TopLeftCornerReadsNineAndAveragesSixteenBlacks) {
    screen.paint([](ScreenPoint) { return composeColor(250, 100, 25); });
    screen.movePointer(1, 1); // (0, 0) itself is the starting position and would not tick
    ASSERT_TRUE(sampler.blockTick().has_value());
    screen.movePointer(0, 0);
    screen.reads().clear();
    const auto block = sampler.blockTick();
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(std::count(block->begin(), block->end(), 0), 16);
    EXPECT_EQ(screen.reads().size(), 9u);
    // 9 of 25 samples: red 2250 / 25 = 90, green 900 / 25 = 36, blue 225 / 25 = 9.
    EXPECT_EQ(averageColor(*block), composeColor(90, 36, 9));
}

TEST_F(Sampling, FarEdgesAreInclusiveAndBoundsAreTakenOnce) {
    screen.movePointer(99, 79); // the last pixel; column 100 and row 80 count as inside
    ASSERT_TRUE(sampler.blockTick().has_value());
    EXPECT_EQ(screen.reads().size(), 16u); // x 97..100 by y 77..80
    screen.resize(2000, 2000);
    screen.movePointer(150, 150);
    const auto later = sampler.blockTick();
    ASSERT_TRUE(later.has_value());
    EXPECT_EQ(std::count(later->begin(), later->end(), 0), 25);
}

TEST(AverageColor, RoundsEachChannelToNearest) {
    SampleBlock block{};
    block[3] = composeColor(62, 63, 0); // 2.48 and 2.52
    EXPECT_EQ(averageColor(block), composeColor(2, 3, 0));
}

} // namespace
} // namespace huebase
