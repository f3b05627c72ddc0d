#include "editor/editor_fakes.h"
#include "editor/node_rows.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace huebase {
namespace {

using testing::node;

constexpr ColorValue kWhite = 0xFFFFFF;

NodeRows rowsFrom(const LutTable& table) {
    NodeRows rows;
    rows.fill(table);
    return rows;
}

LutTable ramp(std::initializer_list<float> values) {
    LutTable table;
    for (float v : values)
        table.push_back(node(v, MethodLin, 0));
    return table;
}

TEST(NodeRows, FillTakesEachNodeWithItsNeighboursAsBoundsAndGivesTheTableBack) {
    const LutTable table{node(0, MethodLin, 1, -1), node(10, MethodLog, 2, 20),
                         node(20, MethodExpPlus, 3, 30), node(30, MethodNone, 4, 33)};
    NodeRows rows;
    rows.prepareEnds(-1.0f, 1.0f);
    rows.setLock(0, false);
    rows.fill(table);
    ASSERT_EQ(rows.count(), 4);
    EXPECT_EQ(rows[0], (NodeRow{0, -1, -1, true, MethodLin, 1})) << "row 0 keeps its bounds";
    EXPECT_EQ(rows[1], (NodeRow{10, 0, 20, false, MethodLog, 2}));
    EXPECT_EQ(rows[3], (NodeRow{30, 20, 33, true, MethodNone, 4}));
    EXPECT_EQ(rows.toTable(), table) << "row k becomes node k+1";
    rows.setMax(1, 6.5f);
    EXPECT_EQ(rows.toTable()[1].upper, 6.5f) << "the upper field is the row's upper bound";

    // The ends: first row locked black, last white with its lock untouched.
    rows.setLock(0, false);
    rows.setLock(3, false);
    rows.prepareEnds(-3.0f, 9.0f);
    EXPECT_EQ(rows[0], (NodeRow{-3.0f, -3.0f, -3.0f, true, MethodLin, 0}));
    EXPECT_EQ(rows[3], (NodeRow{9.0f, 9.0f, 9.0f, false, MethodNone, kWhite}));
    EXPECT_EQ(rows[2].value, 20.0f) << "middle rows are left as they are";
}

TEST(NodeRows, ShorterTablesRemoveRowsButTwoStayAndBadSizesChangeNothing) {
    NodeRows rows = rowsFrom(ramp({0, 1, 2, 3}));
    rows.fill({node(5, MethodExp, 9), node(8, MethodLin, 7, 8)});
    ASSERT_EQ(rows.count(), 2);
    const NodeRow rowOne = rows[1];
    EXPECT_EQ(rowOne, (NodeRow{8, 5, 8, true, MethodLin, 7}));

    rows.fill({node(4, MethodLog, 3)});
    ASSERT_EQ(rows.count(), 2);
    EXPECT_EQ(rows[0].value, 4.0f);
    EXPECT_EQ(rows[1], rowOne) << "a one-node table keeps row 1";

    EXPECT_THROW(rows.fill({}), VbError);
    EXPECT_THROW(rows.fill(LutTable(NodeRows::kMaxRows + 1)), VbError);
    EXPECT_EQ(rows[0].value, 4.0f);
    EXPECT_NO_THROW(rows.fill(LutTable(NodeRows::kMaxRows)));
}

TEST(NodeRows, TypedOrDraggedValuesReachTheNeighboursBounds) {
    NodeRows rows = rowsFrom(ramp({0, 10, 20, 30, 40}));
    rows.passOffset(2, 22);
    EXPECT_EQ(rows[2].value, 22.0f);
    EXPECT_EQ(rows[1].upper, 22.0f);
    EXPECT_EQ(rows[3].lower, 22.0f);
    const NodeRows before = rows;
    rows.passOffset(1, 5);
    rows.passOffset(3, 35);
    EXPECT_EQ(rows[0], before[0]) << "the end rows never take a typed value";
    EXPECT_EQ(rows[4], before[4]);
    EXPECT_EQ(rows[2].lower, 5.0f);
    EXPECT_EQ(rows[2].upper, 35.0f);

    // A drag moves a middle node only strictly inside its bounds (here 5..35).
    EXPECT_TRUE(rows.moveNode(2, 15));
    EXPECT_EQ(rows[1].upper, 15.0f);
    EXPECT_EQ(rows[3].lower, 15.0f);
    for (float x : {35.0f, 5.0f, 40.0f})
        EXPECT_FALSE(rows.moveNode(2, x)) << x;
    EXPECT_EQ(rows[2].value, 15.0f);
    EXPECT_FALSE(rows.moveNode(0, 1));
    EXPECT_FALSE(rows.moveNode(4, 38));
}

TEST(NodeRows, TheTopmostButtonUnderAValueIsTheLaterRow) {
    NodeRows rows = rowsFrom(ramp({0, 10, 11, 30}));
    // Buttons span value - 1 up to just before value + 1.
    const std::pair<float, int> hits[] = {
        {10.6f, 2}, {9.5f, 1}, {-0.9f, 0}, {20.0f, -1}, {31.0f, -1}};
    for (const auto& [x, button] : hits)
        EXPECT_EQ(rows.buttonAt(x, 1.0f), button) << x;

    rows.passOffset(1, 12); // out of order: the search falls back to a scan
    EXPECT_EQ(rows.buttonAt(11.6f, 1.0f), 2);
    EXPECT_EQ(rows.buttonAt(12.8f, 1.0f), 1);
}

TEST(NodeRowsInsert, NewNodeTakesTheRampColourTheMethodAboveAndBoundsFromItsNeighbours) {
    NodeRows rows =
        rowsFrom({node(0, MethodLin, 0), node(100, MethodLog, kWhite), node(200, 0, 0)});
    EXPECT_EQ(rows.insertAt(50), 1);
    ASSERT_EQ(rows.count(), 4);
    EXPECT_EQ(rows[1], (NodeRow{50, 0, 100, false, MethodLin, 0x808080}));
    EXPECT_EQ(rows[0].upper, 50.0f);
    EXPECT_EQ(rows[2].lower, 50.0f);
    EXPECT_EQ(rows[2].value, 100.0f);
    EXPECT_EQ(rows[3].value, 200.0f);
    EXPECT_TRUE(rows[3].locked) << "the lock moves down with its row";

    // "Log" white to black at the middle: weight 0.25.
    EXPECT_EQ(rows.insertAt(150), 3);
    EXPECT_EQ(rows[3].color, 0xBFBFBF);
    EXPECT_EQ(rows[3].method, MethodLog);

    for (float x : {0.0f, 50.0f, 200.0f, -1.0f, 250.0f})
        EXPECT_EQ(rows.insertAt(x), -1) << "on a node or outside: " << x;
    EXPECT_EQ(rows.count(), 5);
}

TEST(NodeRowsInsert, FullRowsAreOverflowAfterWhatFits) {
    NodeRows rows = rowsFrom({node(0, 0, 0), node(1000000, 0, kWhite)});
    std::vector<float> values(NodeRows::kMaxRows + 10);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<float>(i + 1);
    EXPECT_THROW(rows.insertEach(values), VbError);
    ASSERT_EQ(rows.count(), NodeRows::kMaxRows);
    EXPECT_EQ(rows[NodeRows::kMaxRows - 2].value, static_cast<float>(NodeRows::kMaxRows - 2));
    EXPECT_EQ(rows[NodeRows::kMaxRows - 1].lower, rows[NodeRows::kMaxRows - 2].value);

    EXPECT_EQ(rows.insertAt(-5), -1) << "a refused value needs no room";
    EXPECT_THROW(rows.insertAt(0.5f), VbError);
}

// Inserting many values in one pass must leave exactly the rows that inserting
// them one at a time leaves, each new node coloured from the starting ramp.
void expectSameAsOneAtATime(const NodeRows& start, const std::vector<float>& values) {
    NodeRows oneByOne = start;
    int expectedAdded = 0;
    for (float x : values) {
        const int k = oneByOne.insertAt(x);
        if (k < 0)
            continue;
        oneByOne.setColor(k, start.rampColorAt(start.intervalHolding(x), x));
        ++expectedAdded;
    }
    NodeRows merged = start;
    EXPECT_EQ(merged.insertEach(values), expectedAdded);
    ASSERT_EQ(merged.count(), oneByOne.count());
    for (int k = 0; k < merged.count(); ++k)
        ASSERT_EQ(merged[k], oneByOne[k]) << "row " << k;
}

TEST(NodeRowsInsertEach, MatchesOneAtATimeForEveryMethodDuplicatesAndRowsOutOfOrder) {
    std::mt19937 random(11);
    std::uniform_int_distribution<int> method(0, kMethodCount - 1);
    std::uniform_int_distribution<int> color(0, 0xFFFFFF);
    std::uniform_real_distribution<float> value(-50.0f, 150.0f);
    for (int round = 0; round < 20; ++round) {
        LutTable table{node(0, method(random), color(random))};
        for (float v : {20.0f, 20.0f, 45.5f, 80.0f, 100.0f})
            table.push_back(node(v, static_cast<std::uint8_t>(method(random)), color(random)));
        std::vector<float> values(300);
        for (float& v : values)
            v = std::round(value(random) * 2.0f) / 2.0f; // repeats and node values
        std::sort(values.begin(), values.end());
        expectSameAsOneAtATime(rowsFrom(table), values);
    }

    NodeRows outOfOrder = rowsFrom({node(0, 0, 0), node(10, 0, 0x00FF00), node(20, 0, kWhite)});
    outOfOrder.passOffset(1, 25); // a typed value beyond its neighbour
    expectSameAsOneAtATime(outOfOrder, {1, 5, 12, 15, 21, 22, 24});
}

TEST(NodeRowsInsertEach, CloseValuesFollowTheStartingRampInsteadOfStalling) {
    // Each step is a quarter of a grey level, which blending from the node
    // inserted just before would round away.
    NodeRows rows = rowsFrom({node(0, MethodLin, 0), node(2000, MethodLin, kWhite)});
    std::vector<float> values;
    for (int v = 500; v < 1500; ++v)
        values.push_back(static_cast<float>(v));
    ASSERT_EQ(rows.insertEach(values), 1000);
    EXPECT_EQ(RedOf(rows[1].color), 64);    // 500 / 2000 of 255 = 63.75
    EXPECT_EQ(RedOf(rows[500].color), 127); // 999 / 2000 of 255 = 127.4
    EXPECT_EQ(RedOf(rows[1000].color), 191);
}

} // namespace
} // namespace huebase
