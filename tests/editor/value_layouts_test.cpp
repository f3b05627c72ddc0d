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

} // namespace
} // namespace huebase
