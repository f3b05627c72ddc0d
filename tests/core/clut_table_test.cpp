#include "core/clut_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <span>

namespace huebase {
namespace {

constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr ColorValue kNoData = 0x123456;

struct Row {
    float value;
    std::uint8_t method;
    ColorValue color;
};

// A table of rows, each bounded by the next value.
ClutTable clutOf(std::span<const Row> rows) {
    LutTable table;
    for (const Row& row : rows)
        table.push_back({row.value, row.method, row.color, row.value});
    ClutTable clut;
    clut.setTable(table, kNoData);
    return clut;
}

// Both the query and the row-by-row scan give each colour.
void expectColors(const ClutTable& clut, std::span<const ValueColor> answers) {
    for (const auto& [x, color] : answers) {
        EXPECT_EQ(clut.ClutInterpolate(x), color) << x;
        EXPECT_EQ(clut.ClutInterpolateByScan(x), color) << x;
    }
}

TEST(ClutInterpolate, BlendsWithTheMethodOfTheRowBelowBlackBelowNoDataAbove) {
    const Row rows[] = {{0, MethodLin, 0x202020},      {10, MethodLog, 0x0000FF},
                        {20, MethodExp, 0x00FF00},     {36, MethodLogPlus, 0xFF0000},
                        {40, MethodExpPlus, 0x0000FF}, {50, MethodNone, 0xFFFFFF},
                        {60, MethodLin, 0x00FFFF}};
    ClutTable clut = clutOf(rows);
    // t = 0.5 (Lin), 0.25 (Log), 0.5 (Exp), 0.0625 (Log+), 0.8122 (Exp+), None
    const ValueColor answers[] = {{5, 0x101090},       {15, 0x0040BF},      {24, 0x808000},
                                  {38, 0xEF0010},      {45, 0xCFCFFF},      {50, 0xFFFFFF},
                                  {59.999f, 0xFFFFFF}, {-0.001f, 0},        {-kInf, 0},
                                  {kNaN, 0},           {60.0001f, kNoData}, {kInf, kNoData}};
    expectColors(clut, answers);
    for (const LutNode& row : clut.table())
        EXPECT_EQ(clut.ClutInterpolate(row.value), row.color) << row.value;
    clut.setNoDataColor(0x0A0B0C);
    EXPECT_EQ(clut.ColorArray({-1, 5, 60, 70}),
              (std::vector<ValueColor>{{-1, 0}, {5, 0x101090}, {60, 0x00FFFF}, {70, 0x0A0B0C}}));
}

TEST(ClutInterpolate, EmptyAndSingleRowTables) {
    EXPECT_EQ(ClutTable().ClutInterpolate(0), 0);
    const ValueColor empty[] = {{-1, 0}, {0, 0}, {kInf, 0}, {kNaN, 0}};
    expectColors(clutOf({}), empty);
    const Row single[] = {{3, MethodLin, 0x00AA00}};
    const ValueColor singleAnswers[] = {{2, 0}, {3, 0x00AA00}, {4, kNoData}};
    expectColors(clutOf(single), singleAnswers);
}

TEST(ClutInterpolate, EqualNeighboursUseSpanOneAndTheLaterRow) {
    const Row rows[] = {{0, MethodLin, 0x000000},
                        {10, MethodLin, 0x0000FF},
                        {10, MethodLin, 0x00FF00},
                        {20, MethodLin, 0xFF0000},
                        {20, MethodLin, 0xFFFFFF}};
    const ClutTable clut = clutOf(rows);
    EXPECT_EQ(clut.spans(), (std::vector<float>{10, 1, 10, 1}));
    const ValueColor answers[] = {{5, 0x000080}, {10, 0x00FF00}, {15, 0x808000}, {20, 0xFFFFFF}};
    expectColors(clut, answers);
}

// A blend of a colour with bit 24 set fails into black, but an interval's own
// colour at its start and a None interval pass it through.
TEST(ClutInterpolate, NoneHoldsItsIntervalUnknownMethodsAndUnsplittableColoursGiveBlack) {
    const ColorValue bit24 = 0x010000FF;
    const Row rows[] = {{0, MethodLin, 0x000000},   {10, MethodLin, bit24},
                        {20, MethodNone, 0x0000FF}, {30, 6, bit24},
                        {40, MethodLin, 0x00FF00},  {50, 99, 0xFFFFFF}};
    const ValueColor answers[] = {
        {5, 0},  {10, bit24}, {15, 0},        {20, 0x0000FF}, {29.99f, 0x0000FF},
        {30, 0}, {35, 0},     {40, 0x00FF00}, {45, 0x80FF80}, {50, 0xFFFFFF}};
    expectColors(clutOf(rows), answers);
}

TEST(ClutInterpolate, InfiniteSpansFaultIntoBlack) {
    const Row infinite[] = {
        {-kInf, MethodLin, 0x0000FF}, {0, MethodLin, 0x00FF00}, {kInf, MethodLin, 0xFF0000}};
    const ValueColor answers[] = {{-kInf, 0}, {-5, 0}, {5, 0}, {kInf, 0xFF0000}};
    expectColors(clutOf(infinite), answers);
    const Row wide[] = {{-3e38f, MethodLin, 0x0000FF}, {3e38f, MethodLin, 0x00FF00}};
    const ClutTable tooWide = clutOf(wide);
    EXPECT_TRUE(std::isinf(tooWide.spans()[0]));
    EXPECT_EQ(tooWide.ClutInterpolate(0), 0);
    EXPECT_EQ(tooWide.ClutInterpolateByScan(0), 0);
}

TEST(ClutInterpolate, RowsOutOfOrderAreScannedFromTheFirst) {
    const Row rows[] = {{0, MethodLin, 0x000000},
                        {10, MethodLin, 0x0000FF},
                        {5, MethodLin, 0x00FF00},
                        {20, MethodLin, 0xFF0000}};
    const ClutTable clut = clutOf(rows);
    EXPECT_FALSE(clut.isAscending());
    EXPECT_EQ(clut.spans(), (std::vector<float>{10, -5, 15}));
    // 0.7f * 255 is 178.49999; 12 lies 7/15 of the way from 5 to 20.
    const ValueColor answers[] = {{7, 0x0000B2}, {12, 0x778800}, {25, kNoData}};
    expectColors(clut, answers);
}

// The blocked search must answer every ascending table exactly like the scan:
// any size, duplicates, runs of equal rows, every method and unknown ones,
// colours with upper bits, queries on, beside and between rows.
TEST(ClutInterpolate, AnswersRandomAscendingTablesExactlyLikeTheScan) {
    std::mt19937 random(424242);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(random); };
    auto uniform = [&](float lo, float hi) {
        return std::uniform_real_distribution<float>(lo, hi)(random);
    };
    // Sizes around the search's block and level boundaries (16, 256, 4096) last.
    const int edges[] = {8, 9, 16, 17, 255, 256, 257, 272, 4095, 4096, 4097};
    for (int round = 0; round < 622; ++round) {
        const int n = round < 300   ? pick(1, 12)
                      : round < 600 ? pick(13, 700)
                                    : edges[(round - 600) / 2];
        // Few distinct values: many duplicates.
        const bool coarse = (round < 600 ? round % 3 : round % 2) == 0;
        std::vector<float> values(n);
        for (float& v : values)
            v = coarse ? static_cast<float>(pick(-5, 5)) : uniform(-1000.0f, 1000.0f);
        std::sort(values.begin(), values.end());
        LutTable table;
        for (const float v : values) {
            ColorValue color = pick(0, 0xFFFFFF);
            color |= pick(0, 40) == 0 ? 0x01000000 : 0;
            color |= pick(0, 40) == 0 ? static_cast<ColorValue>(0x80000000u) : 0;
            table.push_back({v, static_cast<std::uint8_t>(pick(0, 7)), color, v});
        }
        ClutTable clut;
        clut.setTable(table, pick(0, 0xFFFFFF));
        ASSERT_TRUE(clut.isAscending());
        std::vector<float> queries{kNaN, -kInf, kInf};
        for (const float v : values)
            queries.insert(queries.end(), {v, std::nextafter(v, -kInf), std::nextafter(v, kInf)});
        for (int k = 0; k < 200; ++k)
            queries.push_back(uniform(values.front() - 10.0f, values.back() + 10.0f));
        for (const float x : queries)
            ASSERT_EQ(clut.ClutInterpolate(x), clut.ClutInterpolateByScan(x))
                << "x = " << x << ", round " << round << ", " << n << " rows";
    }
}

} // namespace
} // namespace huebase
