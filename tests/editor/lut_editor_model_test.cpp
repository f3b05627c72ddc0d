#include "editor/editor_fakes.h"
#include "editor/lut_editor_model.h"
#include "support/service_recorder.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

using testing::CountingListener;
using testing::FakeOwner;
using testing::node;

constexpr ColorValue kWhite = 0xFFFFFF;

class EditorModelTest : public ::testing::Test {
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

TEST_F(EditorModelTest, RowColourAndMethodChangesRepaintTheBar) {
    const int bars = listener.bars;
    const int tabs = listener.tabs;
    editor.setColor(1, 0x123456);
    EXPECT_EQ(listener.tabs, tabs + 1);
    EXPECT_EQ(listener.bars, bars + 1);
    EXPECT_EQ(editor.lutTable()[1].color, 0x123456);

    editor.SetMode(1, MethodNone);
    EXPECT_EQ(listener.bars, bars + 2);
    // Interval 0..10 takes 65 slices of 40/256; then the flat one.
    EXPECT_EQ(editor.colorBar().slices()[65], (ColorSlice{10, 30, 0x123456}));
    EXPECT_THROW(editor.SetMode(1, kMethodCount), VbError);

    editor.removeListener(&listener);
    editor.PaintColorBar();
    EXPECT_EQ(listener.bars, bars + 2) << "a removed listener hears nothing";
}

TEST_F(EditorModelTest, OkSendsAndConfirmsResetGivesTheOwnersTableBackCancelEnds) {
    testing::ServiceRecorder services;
    editor.OK();
    EXPECT_EQ(owner.okCount, 1);
    EXPECT_EQ(owner.received.back(), editor.lutTable());
    EXPECT_EQ(owner.received.back().size(), 4u);
    EXPECT_FALSE(services.ended());

    editor.releaseOnGraph(25, MouseButton::Left);
    ASSERT_EQ(editor.rowCount(), 5);
    editor.Reset();
    EXPECT_EQ(owner.resetCount, 1);
    EXPECT_EQ(editor.rowCount(), 4);
    EXPECT_FALSE(services.ended());

    editor.Cancel();
    EXPECT_EQ(owner.resetCount, 2);
    EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
}

} // namespace
} // namespace huebase
