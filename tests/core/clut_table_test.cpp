#include "core/clut_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace huebase {
namespace {

constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr ColorValue kNoData = 0x123456;

// One interval per method, then a last row.
ClutTable allMethods() {
    ClutTable clut;
    clut.setTable(
        {
            {0.0f, MethodLin, 0x202020, 10.0f},
            {10.0f, MethodLog, 0x0000FF, 20.0f},
            {20.0f, MethodExp, 0x00FF00, 36.0f},
            {36.0f, MethodLogPlus, 0xFF0000, 40.0f},
            {40.0f, MethodExpPlus, 0x0000FF, 50.0f},
            {50.0f, MethodNone, 0xFFFFFF, 60.0f},
            {60.0f, MethodLin, 0x00FFFF, 60.0f},
        },
        kNoData);
    return clut;
}

TEST(ClutInterpolate, BlendsWithTheMethodOfTheRowBelow) {
    const ClutTable clut = allMethods();
    EXPECT_EQ(clut.ClutInterpolate(5.0f), composeColor(144, 16, 16));    // Lin, t = 0.5
    EXPECT_EQ(clut.ClutInterpolate(15.0f), composeColor(191, 64, 0));    // Log, 0.25
    EXPECT_EQ(clut.ClutInterpolate(24.0f), composeColor(0, 128, 128));   // Exp, 0.5
    EXPECT_EQ(clut.ClutInterpolate(38.0f), composeColor(16, 0, 239));    // Log+, 0.0625
    EXPECT_EQ(clut.ClutInterpolate(45.0f), composeColor(255, 207, 207)); // Exp+, 0.8122
    for (const float x : {50.0f, 50.5f, 55.0f, 59.999f})
        EXPECT_EQ(clut.ClutInterpolate(x), 0xFFFFFF) << x; // None: the row's own colour
}

TEST(ClutInterpolate, OnARowGivesThatRowsColour) {
    const ClutTable clut = allMethods();
    for (const LutNode& row : clut.table())
        EXPECT_EQ(clut.ClutInterpolate(row.value), row.color) << row.value;
}

TEST(ClutInterpolate, BelowTheTableIsBlackAboveItTheNoDataColour) {
    ClutTable clut = allMethods();
    for (const float x : {-0.001f, -1e30f, -kInf, kNaN})
        EXPECT_EQ(clut.ClutInterpolate(x), 0) << x;
    for (const float x : {60.0001f, 1e30f, kInf})
        EXPECT_EQ(clut.ClutInterpolate(x), kNoData) << x;
    clut.setNoDataColor(0x0A0B0C);
    EXPECT_EQ(clut.noDataColor(), 0x0A0B0C);
    EXPECT_EQ(clut.ClutInterpolate(61.0f), 0x0A0B0C);
    EXPECT_EQ(clut.ClutInterpolate(60.0f), 0x00FFFF);
}

TEST(ClutInterpolate, EmptyAndSingleRowTables) {
    ClutTable clut;
    EXPECT_EQ(clut.ClutInterpolate(0.0f), 0);
    clut.setTable({}, kNoData);
    for (const float x : {-1.0f, 0.0f, 1.0f, kInf, kNaN})
        EXPECT_EQ(clut.ClutInterpolate(x), 0) << x;
    EXPECT_TRUE(clut.spans().empty());

    clut.setTable({{3.0f, MethodLin, 0x00AA00, 3.0f}}, kNoData);
    EXPECT_EQ(clut.ClutInterpolate(2.0f), 0);
    EXPECT_EQ(clut.ClutInterpolate(3.0f), 0x00AA00);
    EXPECT_EQ(clut.ClutInterpolate(4.0f), kNoData);
}

TEST(ClutInterpolate, EqualNeighboursUseSpanOneAndTheLaterRow) {
    ClutTable clut;
    clut.setTable(
        {
            {0.0f, MethodLin, 0x000000, 10.0f},
            {10.0f, MethodLin, 0x0000FF, 10.0f},
            {10.0f, MethodLin, 0x00FF00, 20.0f},
            {20.0f, MethodLin, 0xFF0000, 20.0f},
            {20.0f, MethodLin, 0xFFFFFF, 20.0f},
        },
        kNoData);
    EXPECT_EQ(clut.spans(), (std::vector<float>{10.0f, 1.0f, 10.0f, 1.0f}));
    EXPECT_TRUE(clut.isAscending());
    EXPECT_EQ(clut.ClutInterpolate(5.0f), 0x000080);
    EXPECT_EQ(clut.ClutInterpolate(10.0f), 0x00FF00); // passes both rows of 10
    EXPECT_EQ(clut.ClutInterpolate(15.0f), composeColor(0, 128, 128));
    EXPECT_EQ(clut.ClutInterpolate(20.0f), 0xFFFFFF); // equal to the last row
    EXPECT_EQ(clut.ClutInterpolateByScan(10.0f), 0x00FF00);
    EXPECT_EQ(clut.ClutInterpolateByScan(20.0f), 0xFFFFFF);
}

TEST(ClutInterpolate, NoneOnlyHoldsTheIntervalItStarts) {
    ClutTable clut;
    clut.setTable(
        {
            {0.0f, MethodLin, 0x000000, 10.0f},
            {10.0f, MethodNone, 0x0000FF, 20.0f},
            {20.0f, MethodLin, 0x00FF00, 30.0f},
            {30.0f, MethodLin, 0xFF0000, 30.0f},
        },
        kNoData);
    EXPECT_EQ(clut.ClutInterpolate(5.0f), 0x000080); // None on the next row does not matter
    for (const float x : {10.0f, 12.5f, 19.99f})
        EXPECT_EQ(clut.ClutInterpolate(x), 0x0000FF) << x;
    EXPECT_EQ(clut.ClutInterpolate(20.0f), 0x00FF00);
}

TEST(ClutInterpolate, UnknownMethodsGiveBlackInTheirInterval) {
    ClutTable clut;
    clut.setTable(
        {
            {0.0f, 6, 0x0000FF, 10.0f},
            {10.0f, 200, 0x00FF00, 20.0f},
            {20.0f, 99, 0xFF0000, 20.0f},
        },
        kNoData);
    for (const float x : {0.0f, 5.0f, 10.0f, 19.0f})
        EXPECT_EQ(clut.ClutInterpolate(x), 0) << x;
    EXPECT_EQ(clut.ClutInterpolate(20.0f), 0xFF0000); // the last row's method is never used
}

TEST(ClutInterpolate, AFailingColourSplitGivesBlackButTheEndsPassThrough) {
    const ColorValue bit24 = 0x010000FF;
    ClutTable clut;
    clut.setTable(
        {
            {0.0f, MethodLin, 0x000000, 10.0f},
            {10.0f, MethodLin, bit24, 20.0f},
            {20.0f, MethodNone, 0x00FF00, 30.0f},
            {30.0f, MethodLin, bit24, 30.0f},
        },
        kNoData);
    EXPECT_EQ(clut.ClutInterpolate(5.0f), 0);
    EXPECT_EQ(clut.ClutInterpolate(0.0f), 0x000000);
    EXPECT_EQ(clut.ClutInterpolate(10.0f), bit24); // t = 0 returns the row unsplit
    EXPECT_EQ(clut.ClutInterpolate(15.0f), 0);
    EXPECT_EQ(clut.ClutInterpolate(25.0f), 0x00FF00);
    EXPECT_EQ(clut.ClutInterpolate(30.0f), bit24);
    for (const float x : {5.0f, 10.0f, 15.0f, 25.0f, 30.0f})
        EXPECT_EQ(clut.ClutInterpolateByScan(x), clut.ClutInterpolate(x)) << x;
}

TEST(ClutInterpolate, InfiniteRowsFaultIntoBlackInsteadOfDividing) {
    ClutTable clut;
    clut.setTable(
        {
            {-kInf, MethodLin, 0x0000FF, 0.0f},
            {0.0f, MethodLin, 0x00FF00, kInf},
            {kInf, MethodLin, 0xFF0000, kInf},
        },
        kNoData);
    EXPECT_EQ(clut.ClutInterpolate(-kInf), 0);
    EXPECT_EQ(clut.ClutInterpolate(-5.0f), 0);
    EXPECT_EQ(clut.ClutInterpolate(5.0f), 0);
    EXPECT_EQ(clut.ClutInterpolate(kInf), 0xFF0000);
    // A span too wide for a float overflows the same way.
    clut.setTable({{-3e38f, MethodLin, 0x0000FF, 3e38f}, {3e38f, MethodLin, 0x00FF00, 3e38f}},
                  kNoData);
    EXPECT_TRUE(std::isinf(clut.spans()[0]));
    EXPECT_EQ(clut.ClutInterpolate(0.0f), 0);
    EXPECT_EQ(clut.ClutInterpolateByScan(0.0f), 0);
}

TEST(ClutInterpolate, RowsOutOfOrderAreScannedFromTheFirst) {
    ClutTable clut;
    clut.setTable(
        {
            {0.0f, MethodLin, 0x000000, 10.0f},
            {10.0f, MethodLin, 0x0000FF, 5.0f},
            {5.0f, MethodLin, 0x00FF00, 20.0f},
            {20.0f, MethodLin, 0xFF0000, 20.0f},
        },
        kNoData);
    EXPECT_FALSE(clut.isAscending());
    EXPECT_EQ(clut.spans(), (std::vector<float>{10.0f, -5.0f, 15.0f}));
    EXPECT_EQ(clut.ClutInterpolate(7.0f), composeColor(178, 0, 0));    // 0.7f * 255 = 178.49999
    EXPECT_EQ(clut.ClutInterpolate(12.0f), composeColor(0, 136, 119)); // 5 -> 20 at 7/15
    EXPECT_EQ(clut.ClutInterpolate(25.0f), kNoData);

    clut.setTable({{0.0f, MethodLin, 0x0000FF, 0.0f},
                   {kNaN, MethodLin, 0x00FF00, 0.0f},
                   {10.0f, MethodLin, 0xFF0000, 0.0f}},
                  kNoData);
    EXPECT_FALSE(clut.isAscending());
    EXPECT_EQ(clut.ClutInterpolate(5.0f), 0); // stops at the NaN row, span NaN
    EXPECT_EQ(clut.ClutInterpolate(0.0f), 0);
}

TEST(ClutTable, KeepsItsOwnCopyOfTheTable) {
    LutTable table{{1.0f, MethodLin, 0x000000, 2.0f}, {2.0f, MethodLin, 0x0000FF, 2.0f}};
    ClutTable clut;
    clut.setTable(table, kNoData);
    const LutTable sent = table;
    table[1].color = 0x00FF00;
    EXPECT_EQ(clut.table(), sent);
    EXPECT_EQ(clut.noDataColor(), kNoData);
    EXPECT_EQ(clut.ClutInterpolate(2.0f), 0x0000FF);
}

TEST(ClutTable, ColorArrayPairsEachValueWithItsColour) {
    const ClutTable clut = allMethods();
    const std::vector<float> values{-1.0f, 0.0f, 5.0f, 60.0f, 70.0f};
    const std::vector<ValueColor> expected{{-1.0f, 0},
                                           {0.0f, 0x202020},
                                           {5.0f, composeColor(144, 16, 16)},
                                           {60.0f, 0x00FFFF},
                                           {70.0f, kNoData}};
    EXPECT_EQ(clut.ColorArray(values), expected);
    EXPECT_TRUE(clut.ColorArray({}).empty());
}

// The binary search and the split colours must agree with the plain scan on
// every kind of ascending table: duplicates, runs of equal rows, every method
// (and unknown ones), colours with upper bits, queries on and between rows.
TEST(ClutInterpolate, AnswersAscendingTablesExactlyLikeTheScan) {
    std::mt19937 random(424242);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(random); };
    auto uniform = [&](float lo, float hi) {
        return std::uniform_real_distribution<float>(lo, hi)(random);
    };
    int compared = 0;
    for (int round = 0; round < 600; ++round) {
        const int n = round < 300 ? pick(1, 12) : pick(13, 700);
        // Few distinct values make duplicates common; a wide range makes the
        // fractions irregular.
        const bool coarse = round % 3 == 0;
        std::vector<float> values(n);
        for (float& v : values)
            v = coarse ? static_cast<float>(pick(-5, 5)) : uniform(-1000.0f, 1000.0f);
        std::sort(values.begin(), values.end());
        LutTable table;
        for (const float v : values) {
            ColorValue color = pick(0, 0xFFFFFF);
            if (pick(0, 40) == 0)
                color |= 0x01000000;
            if (pick(0, 40) == 0)
                color |= static_cast<ColorValue>(0x80000000u);
            table.push_back({v, static_cast<std::uint8_t>(pick(0, 7)), color, v});
        }
        ClutTable clut;
        clut.setTable(table, pick(0, 0xFFFFFF));
        ASSERT_TRUE(clut.isAscending());

        std::vector<float> queries{kNaN, -kInf, kInf};
        for (const float v : values) {
            queries.push_back(v);
            queries.push_back(std::nextafter(v, -kInf));
            queries.push_back(std::nextafter(v, kInf));
        }
        for (int k = 0; k < 200; ++k)
            queries.push_back(uniform(values.front() - 10.0f, values.back() + 10.0f));
        for (const float x : queries) {
            ASSERT_EQ(clut.ClutInterpolate(x), clut.ClutInterpolateByScan(x))
                << "x = " << x << ", round " << round << ", " << n << " rows";
            ++compared;
        }
    }
    EXPECT_GT(compared, 100000);
}

} // namespace
} // namespace huebase
