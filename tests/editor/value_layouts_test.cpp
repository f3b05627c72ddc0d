#include "editor/axis_ticks.h"
#include "editor/value_layouts.h"

#include "util/vb_error.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

using ValueLayouts::VariantRows;

TEST(ValueLayouts, OrderedRowsTakeTheFirstTwoFieldsOfEachRow) {
    const VariantRows rows{{-3.5, 2}, {Variant("7"), 1, "ignored"}};
    EXPECT_EQ(ValueLayouts::orderedRows(rows),
              (std::vector<DistributionRow>{{-3.5f, 2.0}, {7.0f, 1.0}}));
    EXPECT_THROW(ValueLayouts::orderedRows({{1.0}}), VbError);
    try {
        ValueLayouts::orderedRows({{"high", 3}});
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), 13);
    }
}

TEST(ValueLayouts, StraightValuesReadARowOrAColumnAlike) {
    const std::vector<float> expected{3.0f, 1.0f, 2.0f};
    EXPECT_EQ(ValueLayouts::straightValues({{3, 1, 2}}), expected);
    EXPECT_EQ(ValueLayouts::straightValues({{3}, {1}, {2}}), expected);
    EXPECT_TRUE(ValueLayouts::straightValues({}).empty());
}

TEST(ValueLayouts, GridKeepsRowsApart) {
    EXPECT_EQ(ValueLayouts::valueGrid({{1, 2}, {3}}),
              (std::vector<std::vector<float>>{{1.0f, 2.0f}, {3.0f}}));
}

TEST(AxisTicks, AreRoundStepsInsideTheRange) {
    EXPECT_EQ(axisTicks(0, 200, 5), (std::vector<double>{0, 50, 100, 150, 200}));
    EXPECT_EQ(axisTicks(-1437, 2205, 6), (std::vector<double>{-1000, 0, 1000, 2000}));
    EXPECT_EQ(axisTicks(0.31, 0.77, 5), (std::vector<double>{0.4, 0.5, 0.6, 0.7}));
    EXPECT_EQ(axisTicks(0.31, 0.77, 4), (std::vector<double>{0.4, 0.6}));
    for (const auto& [from, to] : {std::pair{-3.7, 8123.0}, {1e-3, 2e-3}, {-50.0, -49.0}}) {
        const std::vector<double> ticks = axisTicks(from, to, 8);
        ASSERT_GE(ticks.size(), 3u) << from;
        EXPECT_LE(ticks.size(), 9u) << from;
        EXPECT_GE(ticks.front(), from);
        EXPECT_LE(ticks.back(), to);
    }
    EXPECT_TRUE(axisTicks(5, 5, 6).empty());
    EXPECT_TRUE(axisTicks(0, 10, 0).empty());
}

} // namespace
} // namespace huebase
