#include "editor/distribution.h"
#include "editor/distribution_counting.h"
#include "editor/editor_fakes.h"
#include "editor/lut_editor_model.h"
#include "util/variant.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

namespace huebase {
namespace {

using testing::FakeOwner;

int errorNumber(const std::function<void()>& action) {
    try {
        action();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

TEST(EditorInitialisation, DefaultDistributionGivesTheBuiltInCurveAndABlackToWhiteRamp) {
    LutEditorModel editor;
    FakeOwner owner(editor);
    editor.DefaultLUT();

    EXPECT_EQ(editor.DataMin(), 0.0f);
    EXPECT_EQ(editor.DataMax(), 200.0f);
    EXPECT_EQ(editor.MaxCount(), 100.0f);
    EXPECT_EQ(editor.AltiArrays(), (std::vector<float>{0.0f, 100.0f, 200.0f}));

    const std::vector<CurveSegment> expectedLines{{{0, 1}, {100, 100}}, {{100, 100}, {200, 50}}};
    EXPECT_EQ(editor.curve().lines(), expectedLines);
    // Points on every row but the last.
    EXPECT_EQ(editor.curve().points(), (std::vector<CurvePoint>{{0, 1}, {100, 100}}));

    ASSERT_EQ(owner.received.size(), 1u);
    const LutTable expected{{0.0f, MethodLin, 0x000000, 0.0f},
                            {200.0f, MethodLin, 0xFFFFFF, 200.0f}};
    EXPECT_EQ(owner.received.back(), expected);
}

TEST(EditorInitialisation, OrderedArrayTakesItsEndsAsTheRangeAndTheHighestCount) {
    LutEditorModel editor;
    EXPECT_EQ(editor.MaxCount(), -9999999.0f);
    // The rows are taken as they stand: the ends come from the first and
    // last rows even when a middle row lies outside them.
    editor.InitFromOrderedArray({{-5.5f, 3}, {-9.0f, 7}, {12.25f, 2}, {40.0f, 4}});
    EXPECT_EQ(editor.DataMin(), -5.5f);
    EXPECT_EQ(editor.DataMax(), 40.0f);
    EXPECT_EQ(editor.MaxCount(), 7.0f);
    EXPECT_EQ(editor.AltiArrays(), (std::vector<float>{-5.5f, -9.0f, 12.25f, 40.0f}));
    EXPECT_EQ(editor.curve().lines().size(), 3u);

    editor.InitFromOrderedArray({{1.0f, -4}, {2.0f, -2}});
    EXPECT_EQ(editor.MaxCount(), -2.0f) << "the scan starts afresh below any count";
}

TEST(EditorInitialisation, EmptyOrderedArrayIsSubscriptErrorAndChangesNothing) {
    LutEditorModel editor;
    editor.DefaultLUT();
    EXPECT_EQ(errorNumber([&] { editor.InitFromOrderedArray({}); }), VbError::SubscriptOutOfRange);
    EXPECT_EQ(editor.DataMax(), 200.0f);
    EXPECT_EQ(editor.AltiArrays().size(), 3u);
}

TEST(EditorInitialisation, RowsFromTheHostsFieldsAreReadAsNumbers) {
    EXPECT_EQ(DistributionRow::fromFields(Variant(" 12.5 "), Variant(3)),
              (DistributionRow{12.5f, 3}));
    EXPECT_EQ(DistributionRow::fromFields(Variant(-1437.0), Variant("1")),
              (DistributionRow{-1437.0f, 1}));
    EXPECT_EQ(errorNumber([] { DistributionRow::fromFields(Variant("x"), Variant(1)); }),
              VbError::TypeMismatch);
}

TEST(StraightArray, SortsAndCountsDistinctValues) {
    const auto rows = DistributionCounting::countStraightArray({5, 1, 3, 5, 1, 5, -2}, -9999);
    EXPECT_EQ(rows, (std::vector<DistributionRow>{{-2, 1}, {1, 2}, {3, 1}, {5, 3}}));
}

TEST(StraightArray, CountsMatchAnIndependentTallyBeyondThousandsOfDistinctValues) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> pick(-1500, 1500);
    std::vector<float> values(20000);
    std::map<float, double> tally;
    for (float& v : values) {
        v = static_cast<float>(pick(random)) / 4.0f;
        tally[v] += 1.0;
    }
    const auto rows = DistributionCounting::countStraightArray(values, -9999999);
    ASSERT_EQ(rows.size(), tally.size());
    ASSERT_GT(rows.size(), 2000u);
    auto it = tally.begin();
    for (const DistributionRow& row : rows) {
        ASSERT_EQ(row.value, it->first);
        ASSERT_EQ(row.count, it->second);
        ++it;
    }
}

TEST(StraightArray, NoDataValueIsKeptOffBothEndsByOverwriting) {
    EXPECT_EQ(DistributionCounting::countStraightArray({7, -1, 3, -1, 9}, -1),
              (std::vector<DistributionRow>{{3, 1}, {3, 1}, {7, 1}, {9, 1}}));
    EXPECT_EQ(DistributionCounting::countStraightArray({99, 3, 7, 99}, 99),
              (std::vector<DistributionRow>{{3, 1}, {7, 1}, {7, 1}}));
    // Inside the range the no-data value is an ordinary value.
    EXPECT_EQ(DistributionCounting::countStraightArray({1, 4, 9}, 4),
              (std::vector<DistributionRow>{{1, 1}, {4, 1}, {9, 1}}));

    LutEditorModel editor;
    editor.InitFromStraightArray({-1, 10, 20, 30, -1}, -1);
    EXPECT_EQ(editor.DataMin(), 10.0f);
    EXPECT_EQ(editor.DataMax(), 30.0f);
    EXPECT_EQ(editor.row(0).value, 10.0f);
}

TEST(StraightArray, NothingLeftBesideTheNoDataValueIsSubscriptError) {
    EXPECT_EQ(errorNumber([] {
                  DistributionCounting::countStraightArray({-1, -1}, -1);
              }),
              VbError::SubscriptOutOfRange);
    EXPECT_EQ(errorNumber([] { DistributionCounting::countStraightArray({}, -1); }),
              VbError::SubscriptOutOfRange);
}

TEST(StdArray, ValuesWithTheSameShortTextMergeAndComeOutAscending) {
    const float tenth = 0.1f;
    const float nearTenth = std::nextafter(tenth, 1.0f); // also "0.1" in seven digits
    const std::vector<std::vector<float>> grid{{5.0f, nearTenth, -3.0f}, {tenth, 5.0f, 5.0f}};
    const auto rows = DistributionCounting::countStdArray(grid);
    EXPECT_EQ(rows, (std::vector<DistributionRow>{{-3.0f, 1}, {nearTenth, 2}, {5.0f, 3}}));

    LutEditorModel editor;
    editor.InitFromStdArray(grid);
    EXPECT_EQ(editor.AltiArrays(), (std::vector<float>{-3.0f, nearTenth, 5.0f}));
    EXPECT_EQ(editor.MaxCount(), 3.0f);
}

TEST(ShownDistribution, SetPropertiesxChangesTheGraphAndEndsButNotValuesNodesOrTable) {
    LutEditorModel editor;
    FakeOwner owner(editor);
    editor.InitFromOrderedArray({{0, 1}, {10, 5}, {20, 2}});
    editor.releaseOnGraph(5.0f, MouseButton::Left);
    const std::vector<ColorSlice> barBefore = editor.colorBar().slices();
    const NodeRow middle = editor.row(1);

    editor.setPropertiesx({{-4, 2}, {8, 9}, {30, 1}});
    EXPECT_TRUE(editor.distributionSet());
    EXPECT_EQ(editor.DataMin(), -4.0f);
    EXPECT_EQ(editor.DataMax(), 30.0f);
    EXPECT_EQ(editor.MaxCount(), 9.0f);
    EXPECT_EQ(editor.AltiArrays(), (std::vector<float>{0, 10, 20}));
    EXPECT_EQ(editor.curve().points().front(), (CurvePoint{-4, 2}));
    EXPECT_EQ(editor.row(0).value, -4.0f);
    EXPECT_EQ(editor.row(2).value, 30.0f);
    EXPECT_EQ(editor.row(1), middle);
    EXPECT_EQ(editor.colorBar().slices(), barBefore);
    EXPECT_EQ(owner.received.size(), 1u);
}

} // namespace
} // namespace huebase
