#include "color/screen_sampler.h"

#include "fake_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace huebase {
namespace {

using testing::FakeScreen;

TEST(PickTick, ReadsThePixelUnderAMovedPointerOnly) {
    FakeScreen screen(100, 80);
    ScreenSampler sampler(screen);

    // The remembered position starts at (0, 0): a pointer resting there gives nothing.
    EXPECT_FALSE(sampler.pickTick().has_value());
    EXPECT_TRUE(screen.reads().empty());

    screen.movePointer(30, 40);
    EXPECT_EQ(sampler.pickTick(), composeColor(40, 60, 30));

    // Same position, new screen content: still nothing.
    screen.paint([](ScreenPoint) { return 0x00FF00; });
    EXPECT_FALSE(sampler.pickTick().has_value());

    screen.movePointer(31, 40);
    EXPECT_EQ(sampler.pickTick(), 0x00FF00);
}

TEST(BlockTick, CellsRunRowByRowAroundThePointer) {
    FakeScreen screen(100, 80);
    ScreenSampler sampler(screen);
    screen.movePointer(50, 60);
    const auto block = sampler.blockTick();
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ((*block)[0], composeColor(10 + 48, 20 + 58, 30));
    EXPECT_EQ((*block)[4], composeColor(10 + 52, 20 + 58, 30));
    EXPECT_EQ((*block)[kBlockCentreCell], composeColor(10 + 50, 20 + 60, 30));
    EXPECT_EQ((*block)[20], composeColor(10 + 48, 20 + 62, 30));
    EXPECT_EQ((*block)[24], composeColor(10 + 52, 20 + 62, 30));
    EXPECT_EQ(screen.reads().size(), 25u);
}

TEST(BlockTick, ModesRememberTheirOwnPointer) {
    FakeScreen screen(100, 80);
    ScreenSampler sampler(screen);
    screen.movePointer(5, 5);
    ASSERT_TRUE(sampler.pickTick().has_value());
    EXPECT_TRUE(sampler.blockTick().has_value()); // the pick did not use up the block's move
    EXPECT_FALSE(sampler.blockTick().has_value());
    EXPECT_FALSE(sampler.pickTick().has_value());
}

TEST(BlockTick, TopLeftCornerGivesSixteenBlackCells) {
    FakeScreen screen(100, 80);
    ScreenSampler sampler(screen);
    screen.paint([](ScreenPoint) { return composeColor(250, 100, 25); });
    screen.movePointer(1, 1); // (0, 0) itself is the starting position and would not tick
    ASSERT_TRUE(sampler.blockTick().has_value());
    screen.movePointer(0, 0);
    screen.reads().clear();
    const auto block = sampler.blockTick();
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(std::count(block->begin(), block->end(), 0), 16);
    EXPECT_EQ(screen.reads().size(), 9u);
    for (const ScreenPoint p : screen.reads()) {
        EXPECT_GE(p.x, 0);
        EXPECT_GE(p.y, 0);
    }
    // 9 of 25 samples: red 2250 / 25 = 90, green 900 / 25 = 36, blue 225 / 25 = 9.
    EXPECT_EQ(averageColor(*block), composeColor(90, 36, 9));
}

TEST(BlockTick, FarEdgesAreInclusiveAndBoundsAreTakenOnce) {
    FakeScreen screen(100, 80);
    ScreenSampler sampler(screen);
    screen.movePointer(99, 79); // last pixel; columns 100 and rows 80 still count as inside
    const auto block = sampler.blockTick();
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(sampler.screenBounds(), (ScreenRect{0, 0, 100, 80}));
    const auto& reads = screen.reads();
    EXPECT_EQ(reads.size(), 16u); // x 97..100 by y 77..80
    EXPECT_TRUE(std::find(reads.begin(), reads.end(), ScreenPoint{100, 80}) != reads.end());
    EXPECT_TRUE(std::find(reads.begin(), reads.end(), ScreenPoint{101, 79}) == reads.end());
    EXPECT_EQ((*block)[24], 0); // (101, 81)

    screen.resize(2000, 2000);
    screen.movePointer(150, 150);
    const auto later = sampler.blockTick();
    ASSERT_TRUE(later.has_value());
    EXPECT_EQ(sampler.screenBounds(), (ScreenRect{0, 0, 100, 80}));
    EXPECT_EQ(std::count(later->begin(), later->end(), 0), 25);
}

TEST(AverageColor, RoundsEachChannelToNearest) {
    SampleBlock block{};
    block[3] = composeColor(62, 63, 0); // 2.48 and 2.52
    EXPECT_EQ(averageColor(block), composeColor(2, 3, 0));

    block.fill(composeColor(10, 20, 30));
    EXPECT_EQ(averageColor(block), composeColor(10, 20, 30));

    block.fill(0xFFFFFF);
    block[kBlockCentreCell] = 0;
    EXPECT_EQ(averageColor(block), composeColor(245, 245, 245)); // 6120 / 25 = 244.8
}

} // namespace
} // namespace huebase
