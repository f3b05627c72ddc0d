#include "editor/editor_fakes.h"
#include "editor/lut_editor_model.h"
#include "support/service_recorder.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace huebase {
namespace {

using testing::CountingListener;
using testing::FakeOwner;
using testing::node;

constexpr ColorValue kWhite = 0xFFFFFF;

bool contains(const std::vector<int>& rows, int row) {
    return std::find(rows.begin(), rows.end(), row) != rows.end();
}

class EditorModelTest : public ::testing::Test {
protected:
    void SetUp() override {
        editor.addListener(&listener);
        editor.InitFromOrderedArray({{0, 4}, {100, 9}, {200, 1}});
    }

    void loadFiveNodes() {
        editor.SetLutTable({node(0, MethodLin, 0), node(50, MethodLin, 0x0000FF),
                            node(100, MethodLog, 0x00FF00), node(150, MethodExp, 0xFF0000),
                            node(200, MethodLin, kWhite, 200)});
    }

    LutEditorModel editor;
    FakeOwner owner{editor};
    CountingListener listener;
};

TEST(EditorModelStart, FreshEditorHasTwoLinRowsNoDragAndTheDesignTooltip) {
    LutEditorModel editor;
    EXPECT_EQ(editor.rowCount(), 2);
    EXPECT_EQ(editor.row(0).method, MethodLin);
    EXPECT_EQ(editor.row(1).method, MethodLin);
    EXPECT_EQ(editor.dragIndex(), -1);
    EXPECT_TRUE(editor.distributionSet());
    EXPECT_FALSE(editor.tabsPlaced());
    EXPECT_EQ(editor.tabToolTip(1), LutEditorModel::kDesignTabToolTip);
}

TEST_F(EditorModelTest, GivenADistributionTheEditorHoldsABlackToWhiteRampOverTheDataRange) {
    EXPECT_EQ(editor.row(0), (NodeRow{0, 0, 0, true, MethodLin, 0}));
    // Both ends start locked, so neither end can be typed over.
    EXPECT_EQ(editor.row(1), (NodeRow{200, 200, 200, true, MethodLin, kWhite}));
    EXPECT_TRUE(editor.tabsPlaced());
    EXPECT_EQ(editor.tabToolTip(1), "200");
    EXPECT_EQ(editor.valueText(1), "200");
    EXPECT_FALSE(editor.colorBar().slices().empty());
    EXPECT_EQ(editor.lutTable(), owner.received.back());
    EXPECT_GE(listener.graph, 1);
    EXPECT_GE(listener.bars, 1);
}

TEST_F(EditorModelTest, SetLutTableFillsTheRowsRepaintsAndDoesNotSend) {
    const std::size_t sent = owner.received.size();
    const int bars = listener.bars;
    loadFiveNodes();
    EXPECT_EQ(editor.rowCount(), 5);
    EXPECT_TRUE(editor.row(0).locked);
    EXPECT_TRUE(editor.row(4).locked);
    EXPECT_FALSE(editor.row(2).locked);
    EXPECT_EQ(editor.row(2).lower, 50.0f);
    EXPECT_EQ(editor.row(2).upper, 150.0f);
    EXPECT_FALSE(editor.loading());
    EXPECT_EQ(listener.bars, bars + 1);
    EXPECT_GE(listener.rowsResets, 1);
    EXPECT_EQ(owner.received.size(), sent);
    EXPECT_EQ(editor.lutTable().size(), 5u) << "painting the bar reads the table from the rows";
}

TEST_F(EditorModelTest, SendLutTableGivesTheOwnerTheRowsInOrder) {
    loadFiveNodes();
    const LutTable sent = editor.sendLutTable();
    ASSERT_EQ(sent.size(), 5u);
    EXPECT_EQ(owner.received.back(), sent);
    for (std::size_t i = 0; i + 1 < sent.size(); ++i)
        EXPECT_LT(sent[i].value, sent[i + 1].value);
    EXPECT_EQ(sent[2], node(100, MethodLog, 0x00FF00, 150));
}

TEST_F(EditorModelTest, RowColourAndMethodChangesRepaintTheBar) {
    loadFiveNodes();
    const int bars = listener.bars;
    const int tabs = listener.tabs;
    editor.setColor(1, 0x123456);
    EXPECT_EQ(editor.row(1).color, 0x123456);
    EXPECT_EQ(listener.tabs, tabs + 1);
    EXPECT_EQ(listener.bars, bars + 1);
    EXPECT_EQ(editor.lutTable()[1].color, 0x123456);

    editor.SetMode(1, MethodNone);
    EXPECT_EQ(listener.bars, bars + 2);
    // Interval 0..50 takes 65 slices of 200/256; then the flat one.
    EXPECT_EQ(editor.colorBar().slices()[65], (ColorSlice{50, 100, 0x123456}));
    EXPECT_THROW(editor.SetMode(1, kMethodCount), VbError);
}

TEST_F(EditorModelTest, LeavingAValueBoxValidatesAndPassesTheValueOn) {
    loadFiveNodes();
    EXPECT_FALSE(editor.commitValueText(2, "abc", '.').has_value());
    EXPECT_EQ(editor.row(2).value, 100.0f);

    EXPECT_EQ(editor.commitValueText(2, "150", '.'), "149");
    EXPECT_EQ(editor.row(2).value, 149.0f);
    EXPECT_EQ(editor.row(1).upper, 149.0f);
    EXPECT_EQ(editor.row(3).lower, 149.0f);
    EXPECT_EQ(editor.tabToolTip(2), "149");
    EXPECT_TRUE(contains(listener.changedRows, 2));

    EXPECT_EQ(editor.commitValueText(1, "7", '.'), "7");
    EXPECT_EQ(editor.row(0).upper, 0.0f) << "the first row never takes a bound";

    EXPECT_FALSE(editor.commitValueText(0, "3", '.').has_value()) << "locked rows are not typed in";
    EXPECT_EQ(editor.row(0).value, 0.0f);
}

TEST_F(EditorModelTest, OkSendsThenConfirmsResetGivesTheOwnersTableBack) {
    loadFiveNodes();
    editor.OK();
    EXPECT_EQ(owner.okCount, 1);
    EXPECT_EQ(owner.received.back().size(), 5u);

    editor.releaseOnGraph(25, MouseButton::Left);
    ASSERT_EQ(editor.rowCount(), 6);
    editor.Reset();
    EXPECT_EQ(owner.resetCount, 1);
    EXPECT_EQ(editor.rowCount(), 5);
}

TEST_F(EditorModelTest, CancelResetsAndEndsTheProgramOkDoesNot) {
    testing::ServiceRecorder services;
    editor.OK();
    EXPECT_FALSE(services.ended());
    editor.Cancel();
    EXPECT_EQ(owner.resetCount, 1);
    EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
}

TEST_F(EditorModelTest, RemovedListenersHearNothing) {
    editor.removeListener(&listener);
    const int bars = listener.bars;
    editor.PaintColorBar();
    EXPECT_EQ(listener.bars, bars);
}

} // namespace
} // namespace huebase
