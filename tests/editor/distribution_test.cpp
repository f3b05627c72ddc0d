#include "editor/axis_ticks.h"
#include "editor/count_scale.h"
#include "editor/distribution.h"
#include "editor/distribution_counting.h"
#include "editor/editor_fakes.h"
#include "editor/graph_readout.h"
#include "editor/lut_editor_model.h"
#include "editor/value_layouts.h"
#include "util/variant.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <algorithm>

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
    EXPECT_EQ(editor.curve().points(), (std::vector<CurvePoint>{{0, 1}, {100, 100}}));

    ASSERT_EQ(owner.received.size(), 1u);
    const LutTable expected{{0.0f, MethodLin, 0x000000, 0.0f},
                            {200.0f, MethodLin, 0xFFFFFF, 200.0f}};
    EXPECT_EQ(owner.received.back(), expected);
}

TEST(EditorInitialisation, OrderedArrayTakesItsEndsAsTheRangeAndTheHighestCount) {
    LutEditorModel editor;
    EXPECT_EQ(editor.MaxCount(), -9999999.0f);
    // The ends come from the first and last rows even when a middle row lies outside them.
    editor.InitFromOrderedArray({{-5.5f, 3}, {-9.0f, 7}, {12.25f, 2}, {40.0f, 4}});
    EXPECT_EQ(editor.DataMin(), -5.5f);
    EXPECT_EQ(editor.DataMax(), 40.0f);
    EXPECT_EQ(editor.MaxCount(), 7.0f);
    EXPECT_EQ(editor.AltiArrays(), (std::vector<float>{-5.5f, -9.0f, 12.25f, 40.0f}));
    EXPECT_EQ(editor.curve().lines().size(), 3u);

    editor.InitFromOrderedArray({{1.0f, -4}, {2.0f, -2}});
    EXPECT_EQ(editor.MaxCount(), -2.0f) << "the scan starts afresh below any count";

    EXPECT_EQ(errorNumber([&] { editor.InitFromOrderedArray({}); }), VbError::SubscriptOutOfRange);
    EXPECT_EQ(editor.DataMax(), 2.0f) << "an empty table changes nothing";
}

TEST(ValueLayouts, HostFieldsAreReadAsNumbersFromRowsOrColumns) {
    EXPECT_EQ(ValueLayouts::orderedRows({{" 12.5 ", Variant("1"), "ignored"}}),
              (std::vector<DistributionRow>{{12.5f, 1.0}}));
    EXPECT_EQ(errorNumber([] { ValueLayouts::orderedRows({{"high", 3}}); }), VbError::TypeMismatch);
    EXPECT_EQ(errorNumber([] { ValueLayouts::orderedRows({{1.0}}); }),
              VbError::SubscriptOutOfRange);
    EXPECT_EQ(ValueLayouts::straightValues({{3}, {1}, {2}}), (std::vector<float>{3, 1, 2}));
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
    // Nothing left beside it is error 9.
    for (const std::vector<float>& values : {std::vector<float>{-1, -1}, std::vector<float>{}})
        EXPECT_EQ(errorNumber([&] { DistributionCounting::countStraightArray(values, -1); }),
                  VbError::SubscriptOutOfRange);

    LutEditorModel editor;
    editor.InitFromStraightArray({-1, 10, 20, 30, -1}, -1);
    EXPECT_EQ(editor.DataMin(), 10.0f);
    EXPECT_EQ(editor.DataMax(), 30.0f);
    EXPECT_EQ(editor.row(0).value, 10.0f);
}

TEST(StdArray, ValuesWithTheSameShortTextMergeAndComeOutAscending) {
    const float tenth = 0.1f;
    const float nearTenth = std::nextafter(tenth, 1.0f); // also "0.1" in seven digits
    const std::vector<std::vector<float>> grid{{5.0f, nearTenth, -3.0f}, {tenth, 5.0f, 5.0f}};
    EXPECT_EQ(DistributionCounting::countStdArray(grid),
              (std::vector<DistributionRow>{{-3.0f, 1}, {nearTenth, 2}, {5.0f, 3}}));
}

TEST(ShownDistribution, SetPropertiesxChangesTheGraphAndEndsButNotValuesNodesOrTable) {
    LutEditorModel editor;
    FakeOwner owner(editor);
    editor.InitFromOrderedArray({{0, 1}, {10, 5}, {20, 2}});
    editor.releaseOnGraph(5.0f, MouseButton::Left);
    const std::vector<ColorSlice> barBefore = editor.colorBar().slices();
    const NodeRow middle = editor.row(1);

    editor.setPropertiesx({{-4, 2}, {8, 9}, {30, 1}});
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

TEST(GraphCoordinates, ValueAxisHasMarginsOfTwoAndAHalfPercentAndCountsGrowUpwards) {
    LutEditorModel editor;
    editor.InitFromOrderedArray({{-100, 10}, {0, 50}, {300, 20}});
    const GraphCoordinates& c = editor.graphCoordinates();
    // The data range sits inside the margins; the bottom edge is -0.2 MaxCount.
    EXPECT_NEAR(c.xToPixel(-100, 420), 10.0, 1e-4);
    EXPECT_NEAR(c.xToPixel(300, 420), 410.0, 1e-4);
    EXPECT_NEAR(c.pixelToY(130, 130), -10.0, 1e-4);
    EXPECT_NEAR(c.yToPixel(0, 130), 110.0, 1e-4);

    // A zero extent maps to the edge instead of dividing by zero.
    const GraphCoordinates flat = GraphCoordinates::forDistribution(5.0f, 5.0f, 0.0f);
    EXPECT_EQ(flat.xToPixel(5.0, 300), 0.0);
    EXPECT_EQ(flat.yToPixel(1.0, 300), 0.0);
    EXPECT_EQ(flat.pixelToX(10, 0), flat.left);
}

TEST(GraphReadout, RoundsHalfToEvenAndNamesBothAxes) {
    const std::pair<double, const char*> rows[] = {
        {2.5, "2"}, {3.5, "4"}, {-0.4, "0"}, {-1437.6, "-1438"}, {123456789.0, "123456789"}};
    for (const auto& [x, text] : rows)
        EXPECT_EQ(GraphReadout::xText(x), text) << x;
    EXPECT_EQ(GraphReadout::toolTip(10.5, 99.5), "Val: 10 nbVal: 100");
}

TEST(AxisTicks, AreRoundStepsInsideTheRange) {
    EXPECT_EQ(axisTicks(0, 200, 5), (std::vector<double>{0, 50, 100, 150, 200}));
    EXPECT_EQ(axisTicks(0.31, 0.77, 4), (std::vector<double>{0.4, 0.6}));
    for (const auto& [from, to] : {std::pair{-3.7, 8123.0}, {1e-3, 2e-3}, {-50.0, -49.0}}) {
        const std::vector<double> ticks = axisTicks(from, to, 8);
        ASSERT_GE(ticks.size(), 3u) << from;
        EXPECT_TRUE(std::ranges::is_sorted(ticks));
        EXPECT_LE(ticks.size(), 9u) << from;
        EXPECT_GE(ticks.front(), from);
        EXPECT_LE(ticks.back(), to);
    }
    // Far from zero the steps are below a double's resolution: still few, ascending ticks.
    const std::vector<double> far = axisTicks(1e20, 1e20 + 65536, 8);
    EXPECT_LE(far.size(), 9u);
    EXPECT_TRUE(std::ranges::is_sorted(far) && std::ranges::adjacent_find(far) == far.end());
    EXPECT_TRUE(axisTicks(5, 5, 6).empty());
    EXPECT_TRUE(axisTicks(0, 10, 0).empty());
}

using Kind = CountScale::Kind;

TEST(CountScale, MapsCountsUpAndBackKeepingZeroOnTheBaseline) {
    const struct {
        Kind kind;
        double count;
        double height;
    } rows[] = {
        {Kind::Linear, 0, 0},
        {Kind::Linear, 250, 250},
        {Kind::Linear, -30, -30},
        {Kind::SquareRoot, 0, 0},
        {Kind::SquareRoot, 1, 1},
        {Kind::SquareRoot, 2500, 50},
        {Kind::SquareRoot, -4, -2},
        {Kind::Logarithmic, 0, 0},
        {Kind::Logarithmic, 1, std::log10(2.0)},
        {Kind::Logarithmic, 99, 2},
        {Kind::Logarithmic, 999999, 6},
        {Kind::Logarithmic, -9, -1},
    };
    for (const auto& [kind, count, height] : rows) {
        const CountScale scale(kind);
        EXPECT_NEAR(scale.toAxis(count), height, 1e-12) << scale.key() << " " << count;
        EXPECT_NEAR(scale.toCount(height), count, 1e-9) << scale.key() << " " << count;
    }
    const std::pair<Kind, const char*> names[] = {{Kind::Linear, "Linear"},
                                                  {Kind::SquareRoot, "Square root"},
                                                  {Kind::Logarithmic, "Logarithmic"}};
    for (const auto& [kind, label] : names) {
        EXPECT_EQ(CountScale(kind).label(), label);
        EXPECT_EQ(CountScale::fromKey(CountScale(kind).key()), CountScale(kind));
    }
    for (const char* bad : {"", "LOG", "logarithmic", " sqrt"})
        EXPECT_FALSE(CountScale::fromKey(bad)) << bad;
}

TEST(CountScale, TicksAreWholeCountsSpreadEvenlyUpEachScale) {
    const struct {
        Kind kind;
        double maxCount;
        int wanted;
        std::vector<double> ticks;
    } rows[] = {
        {Kind::Linear, 2000, 5, {0, 500, 1000, 1500, 2000}},
        {Kind::Linear, 1, 5, {0, 1}},
        {Kind::SquareRoot, 10000, 5, {0, 400, 1600, 3600, 6400, 10000}},
        {Kind::SquareRoot, 4, 4, {0, 1, 4}},
        {Kind::Logarithmic, 1900, 10, {0, 1, 10, 100, 1000}},
        {Kind::Logarithmic, 50, 10, {0, 1, 2, 5, 10, 20, 50}},
        {Kind::Logarithmic, 1e7, 4, {0, 1, 1e5}},
        {Kind::Logarithmic, 0.5, 5, {0}},
    };
    for (const auto& [kind, maxCount, wanted, ticks] : rows)
        EXPECT_EQ(CountScale(kind).ticks(maxCount, wanted), ticks)
            << CountScale(kind).key() << " " << maxCount;

    for (const Kind kind : CountScale::kKinds) {
        for (const double maxCount : {3.0, 77.0, 123456.0, 9.87e8}) {
            const std::vector<double> ticks = CountScale(kind).ticks(maxCount, 8);
            ASSERT_FALSE(ticks.empty());
            EXPECT_TRUE(std::ranges::is_sorted(ticks) &&
                        std::ranges::adjacent_find(ticks) == ticks.end());
            EXPECT_EQ(ticks.front(), 0.0);
            EXPECT_LE(ticks.back(), maxCount);
            EXPECT_LE(ticks.size(), 10u);
            EXPECT_TRUE(std::ranges::all_of(ticks, [](double t) { return std::floor(t) == t; }));
        }
    }
}

TEST(CountScale, LabelsShortenLargeCounts) {
    const std::pair<double, const char*> rows[] = {
        {0, "0"},         {-0.3, "0"},        {9500, "9500"}, {16000, "16k"},
        {250000, "250k"}, {1440000, "1.44M"}, {2e9, "2G"}};
    for (const auto& [count, text] : rows)
        EXPECT_EQ(countLabel(count), text) << count;
}

TEST(GraphReadout, NearestCountNamesTheClosestDistributionValueAndItsRealCount) {
    const std::vector<DistributionRow> rows{{-5, 3}, {10.5f, 4012}, {20, 2.5}};
    const std::pair<double, const char*> cases[] = {
        {12, "Value 10.5, count 4012"}, {15.25, "Value 10.5, count 4012"},
        {15.3, "Value 20, count 2.5"},  {-100, "Value -5, count 3"},
        {1e9, "Value 20, count 2.5"},   {2.7, "Value -5, count 3"}};
    for (const auto& [x, text] : cases)
        EXPECT_EQ(GraphReadout::nearestCountToolTip(rows, x), text) << x;
    EXPECT_EQ(GraphReadout::nearestCountToolTip({}, 3), "");
}

TEST(DistributionCurve, ScaledHeightsAndTheLineBetweenThem) {
    const DistributionCurve curve({{0, 0}, {10, 99}, {20, 9}}, CountScale(Kind::Logarithmic));
    EXPECT_EQ(curve.points(), (std::vector<CurvePoint>{{0, 0}, {10, 2}}));
    const std::pair<double, std::optional<double>> heights[] = {
        {0, 0.0},  {5, 1.0},           {10, 2.0},         {15, 1.5},
        {20, 1.0}, {-1, std::nullopt}, {21, std::nullopt}};
    for (const auto& [x, height] : heights)
        EXPECT_EQ(curve.heightAt(x), height) << x;
    EXPECT_EQ(DistributionCurve({{5, 7}}).heightAt(5), std::nullopt) << "one row draws no line";

    const GraphCoordinates c = GraphCoordinates::forDistribution(-100, 300, 999);
    EXPECT_EQ(c.onScale(CountScale(), 999), c);
    const GraphCoordinates log = c.onScale(CountScale(Kind::Logarithmic), 999);
    EXPECT_EQ(log.left, c.left);
    EXPECT_EQ(log.width, c.width);
    EXPECT_FLOAT_EQ(log.top, 3.3f);
    EXPECT_FLOAT_EQ(log.height, -3.9f);
}

} // namespace
} // namespace huebase
