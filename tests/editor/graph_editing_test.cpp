#include "editor/editor_fakes.h"
#include "editor/lut_editor_model.h"

#include <gtest/gtest.h>

#include <numeric>

namespace huebase {
namespace {

using testing::CountingListener;
using testing::FakeOwner;
using testing::node;

constexpr ColorValue kWhite = 0xFFFFFF;

std::vector<float> values(const LutEditorModel& editor) {
    std::vector<float> out;
    for (int k = 0; k < editor.rowCount(); ++k)
        out.push_back(editor.row(k).value);
    return out;
}

class GraphEditingTest : public ::testing::Test {
protected:
    void SetUp() override {
        editor.addListener(&listener);
        editor.InitFromOrderedArray({{0, 1}, {10, 3}, {20, 2}, {30, 5}, {40, 1}});
        editor.SetLutTable({node(0, MethodLin, 0), node(10, MethodExp, 0x0000FF),
                            node(30, MethodLin, 0x00FF00), node(40, MethodLin, kWhite, 40)});
    }

    LutEditorModel editor;
    FakeOwner owner{editor};
    CountingListener listener;
};

TEST_F(GraphEditingTest, ReleaseBetweenTwoNodesInsertsANodeThere) {
    const int bars = listener.bars;
    EXPECT_TRUE(editor.releaseOnGraph(20, MouseButton::Left));
    EXPECT_EQ(values(editor), (std::vector<float>{0, 10, 20, 30, 40}));
    EXPECT_EQ(editor.row(2), (NodeRow{20, 10, 30, false, MethodExp, editor.row(2).color}));
    EXPECT_EQ(editor.row(1).upper, 20.0f);
    EXPECT_EQ(editor.row(3).lower, 20.0f);
    EXPECT_EQ(listener.bars, bars + 1);
    EXPECT_FALSE(editor.loading());
    EXPECT_EQ(editor.tabToolTip(2), "20");
}

TEST_F(GraphEditingTest, InsertingKeepsThePictureOfALinearRamp) {
    editor.SetLutTable({node(0, MethodLin, 0), node(40, MethodLin, kWhite, 40)});
    const std::vector<ColorSlice> before = editor.colorBar().slices();
    ASSERT_TRUE(editor.releaseOnGraph(10, MouseButton::Middle));
    const std::vector<ColorSlice>& after = editor.colorBar().slices();
    // Same slice starts, colours within one level of rounding.
    for (const ColorSlice& s : before) {
        const auto same = std::find_if(after.rbegin(), after.rend(),
                                       [&](const ColorSlice& a) { return a.x0 == s.x0; });
        ASSERT_NE(same, after.rend());
        EXPECT_LE(std::abs(RedOf(same->color) - RedOf(s.color)), 1) << s.x0;
    }
}

TEST_F(GraphEditingTest, ReleaseOnANodeOutsideTheNodesOrWithTheRightButtonAddsNothing) {
    for (float x : {0.0f, 10.0f, 40.0f, -5.0f, 41.0f})
        EXPECT_FALSE(editor.releaseOnGraph(x, MouseButton::Left)) << x;
    EXPECT_FALSE(editor.releaseOnGraph(20, MouseButton::Right));
    EXPECT_EQ(editor.rowCount(), 4);
}

TEST_F(GraphEditingTest, ShiftRightOnAMiddleNodeDragsItStrictlyBetweenItsNeighbours) {
    EXPECT_EQ(editor.pressOnTab(1, MouseButton::Right, ShiftKey), TabPointer::SizeWestEast);
    EXPECT_EQ(editor.dragIndex(), 1);
    EXPECT_FALSE(editor.clickOpensColorChoice());

    EXPECT_TRUE(editor.moveOnGraph(25));
    EXPECT_EQ(editor.row(1).value, 25.0f);
    EXPECT_EQ(editor.row(0).upper, 25.0f);
    EXPECT_EQ(editor.row(2).lower, 25.0f);
    // Towards the neighbour: stops short of it and keeps the last valid place.
    EXPECT_FALSE(editor.moveOnGraph(30));
    EXPECT_FALSE(editor.moveOnGraph(35));
    EXPECT_TRUE(editor.moveOnGraph(29.5f));
    EXPECT_EQ(editor.row(1).value, 29.5f);
    EXPECT_EQ(editor.lutTable()[1].value, 29.5f) << "the bar was repainted";

    EXPECT_FALSE(editor.releaseOnGraph(20, MouseButton::Right));
    EXPECT_EQ(editor.dragIndex(), -1);
    EXPECT_FALSE(editor.moveOnGraph(20));
    EXPECT_TRUE(editor.clickOpensColorChoice());
}

TEST_F(GraphEditingTest, ShiftRightOnAnEndNodeCancelsTheDrag) {
    editor.pressOnTab(2, MouseButton::Right, ShiftKey);
    EXPECT_EQ(editor.pressOnTab(3, MouseButton::Right, ShiftKey), TabPointer::Unchanged);
    EXPECT_EQ(editor.dragIndex(), -1);
    EXPECT_EQ(editor.pressOnTab(0, MouseButton::Right, ShiftKey), TabPointer::Unchanged);
    EXPECT_EQ(editor.dragIndex(), -1);
}

TEST_F(GraphEditingTest, CtrlRightDeletesAMiddleNodeOnlyAndOtherPressesDoNothing) {
    EXPECT_EQ(editor.pressOnTab(1, MouseButton::Left, CtrlKey), TabPointer::Arrow);
    EXPECT_EQ(editor.pressOnTab(1, MouseButton::Right, ShiftKey | CtrlKey), TabPointer::Unchanged);
    EXPECT_EQ(editor.pressOnTab(1, MouseButton::Right, NoShift), TabPointer::Unchanged);
    EXPECT_EQ(editor.pressOnTab(1, MouseButton::Right, AltKey), TabPointer::Unchanged);
    EXPECT_EQ(editor.rowCount(), 4);
    EXPECT_EQ(editor.dragIndex(), -1);

    editor.pressOnTab(0, MouseButton::Right, CtrlKey);
    editor.pressOnTab(3, MouseButton::Right, CtrlKey);
    EXPECT_EQ(editor.rowCount(), 4);

    editor.pressOnTab(1, MouseButton::Right, CtrlKey);
    EXPECT_EQ(values(editor), (std::vector<float>{0, 30, 40}));
    EXPECT_EQ(editor.row(1).lower, 0.0f);
    EXPECT_EQ(editor.row(1).color, 0x00FF00);
    EXPECT_TRUE(editor.row(2).locked);
}

TEST_F(GraphEditingTest, IndividualValuesOnFiveDistinctValuesBetweenTwoEndNodesLeavesFive) {
    editor.SetLutTable({node(0, MethodLin, 0), node(40, MethodLin, kWhite, 40)});
    EXPECT_EQ(editor.Indiv(), 3);
    EXPECT_EQ(values(editor), (std::vector<float>{0, 10, 20, 30, 40}));
    EXPECT_EQ(editor.Indiv(), 0) << "every value already holds a node";
}

TEST_F(GraphEditingTest, IndividualValuesGivesWhatReleasingAtEachValueGives) {
    LutEditorModel oneByOne;
    oneByOne.InitFromOrderedArray({{0, 1}, {10, 3}, {20, 2}, {30, 5}, {40, 1}});
    oneByOne.SetLutTable(editor.lutTable());
    for (float x : editor.AltiArrays())
        oneByOne.releaseOnGraph(x, MouseButton::Left);
    editor.Indiv();
    EXPECT_EQ(editor.sendLutTable(), oneByOne.sendLutTable());
    EXPECT_EQ(editor.colorBar().slices(), oneByOne.colorBar().slices());
}

TEST_F(GraphEditingTest, ArrowKeysMoveAMiddleNodeWithinTheSameBounds) {
    EXPECT_TRUE(editor.nudgeNode(1, true, false));
    EXPECT_EQ(editor.row(1).value, 11.0f);
    EXPECT_TRUE(editor.nudgeNode(1, false, true)); // a hundredth of the range 0..40
    EXPECT_FLOAT_EQ(editor.row(1).value, 10.6f);
    editor.nudgeNode(2, false, false);
    EXPECT_EQ(editor.row(2).value, 29.0f);
    for (int i = 0; i < 30; ++i)
        editor.nudgeNode(1, true, false);
    EXPECT_LT(editor.row(1).value, editor.row(2).value);
    EXPECT_FALSE(editor.nudgeNode(0, true, false));
    EXPECT_FALSE(editor.nudgeNode(3, false, false));
}

TEST_F(GraphEditingTest, TheButtonUnderAValueIsFoundForHitTesting) {
    EXPECT_EQ(editor.tabAt(10.4f, 0.5f), 1);
    EXPECT_EQ(editor.tabAt(20.0f, 0.5f), -1);
}

} // namespace
} // namespace huebase
