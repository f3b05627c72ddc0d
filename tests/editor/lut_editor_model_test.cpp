#include "editor/color_bar_slices.h"
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

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;

ColorValue grey(int level) {
    return composeColor(level, level, level);
}

ColorBarSlices barOf(const LutTable& table, float dataMin, float dataMax) {
    NodeRows rows;
    rows.fill(table);
    return ColorBarSlices(rows, dataMin, dataMax);
}

TEST(ColorBarSlices, SlicesAreAFixedFractionOfTheRangeAndCoverEachInterval) {
    // Range 512: slices 2 units wide. Interval 0..128 needs 64 slices plus the
    // closing one at k = N; interval 128..512 needs 192 plus one.
    const auto bar = barOf(
        {node(0, MethodLin, kBlack), node(128, MethodLin, kWhite), node(512, 0, kBlack)}, 0, 512);
    EXPECT_EQ(bar.step(), 2.0f);
    ASSERT_EQ(bar.slices().size(), 65u + 193u);
    EXPECT_EQ(bar.slices()[0], (ColorSlice{0, 2, kBlack}));
    EXPECT_EQ(bar.slices()[32], (ColorSlice{64, 66, grey(128)}));
    EXPECT_EQ(bar.slices()[64], (ColorSlice{128, 130, kWhite})) << "k = N reaches past the end";
    EXPECT_EQ(bar.slices()[65], (ColorSlice{128, 130, kWhite})) << "the next one paints over it";
    EXPECT_EQ(bar.slices().back(), (ColorSlice{512, 514, kBlack}));

    // step 1: 2.5 slices round to 2 (three rectangles), 3.5 to 4 (five).
    EXPECT_EQ(barOf({node(0, 0, 0), node(2.5f, 0, kWhite)}, 0, 256).slices().size(), 3u);
    EXPECT_EQ(barOf({node(0, 0, 0), node(3.5f, 0, kWhite)}, 0, 256).slices().size(), 5u);
}

TEST(ColorBarSlices, RampWeightsBendTheBlendAsTheMethodSays) {
    // step 1 over an interval of 256: slice 128 is mid-interval.
    const int levels[] = {128, 64, 180, 16, 207}; // "Lin", "Log", "Exp", "Log+", "Exp+"
    for (std::uint8_t method = MethodLin; method <= MethodExpPlus; ++method) {
        const auto bar = barOf({node(0, method, kBlack), node(256, 0, kWhite)}, 0, 256);
        ASSERT_EQ(bar.slices().size(), 257u);
        EXPECT_EQ(bar.slices()[128], (ColorSlice{128, 129, grey(levels[method])})) << int(method);
    }
}

TEST(ColorBarSlices, NoneAndEmptyIntervalsAreOneFlatRectangleInTheLowerColour) {
    EXPECT_EQ(barOf({node(0, MethodNone, 0x0000FF), node(100, MethodLin, kWhite)}, 0, 100).slices(),
              (std::vector<ColorSlice>{{0, 100, 0x0000FF}}));
    // An empty data range leaves only the flat intervals.
    EXPECT_EQ(
        barOf({node(5, MethodLin, kBlack), node(5, MethodNone, 0x00FF00), node(5, 0, 0)}, 5, 5)
            .slices(),
        (std::vector<ColorSlice>{{5, 5, 0x00FF00}}));
    // A zero-length interval gets one slice.
    const auto bar =
        barOf({node(0, 0, 0x0000FF), node(0, 0, kWhite), node(256, 0, kWhite)}, 0, 256);
    EXPECT_EQ(bar.slices().front(), (ColorSlice{0, 1, 0x0000FF}));
    EXPECT_EQ(bar.slices().size(), 1u + 257u);
}

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
