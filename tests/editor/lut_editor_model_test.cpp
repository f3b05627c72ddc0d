#include "core/clut_table.h"
#include "editor/editor_fakes.h"
#include "editor/lut_editor_model.h"
#include "support/service_recorder.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

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

// Keeps every recorded edit: its name and the ramp before and after.
struct EditLog : LutEditorListener {
    void rampEdited(const char* name, const RampState& before, const RampState& after) override {
        names.emplace_back(name);
        befores.push_back(before);
        afters.push_back(after);
    }
    std::vector<std::string> names;
    std::vector<RampState> befores;
    std::vector<RampState> afters;
};

// The kinds of edit one by one are undone and redone in the window's tests.
TEST_F(EditorModelTest, EditsAreNamedStepsThatRestoringTakesBackExactly) {
    using Names = std::vector<std::string>;
    const struct {
        std::function<void(LutEditorModel&)> edit;
        Names names;
    } cases[] = {
        {[](LutEditorModel& m) { m.pressOnTab(1, MouseButton::Right, CtrlKey); }, {"Delete node"}},
        {[](LutEditorModel& m) { m.Reset(); }, {"Reset"}},
        // A whole drag is one step, and a left release then adds a node.
        {[](LutEditorModel& m) {
             m.pressOnTab(2, MouseButton::Right, ShiftKey);
             for (float x : {25.0f, 27.0f, 33.0f})
                 m.moveOnGraph(x);
             m.releaseOnGraph(15, MouseButton::Left);
         },
         {"Move node", "Add node"}},
        // Several changes run as one edit are one step, named by the outer.
        {[](LutEditorModel& m) {
             m.recorded("Library ramp", [&] {
                 m.SetLutTable({node(0, MethodLin, 0), node(40, MethodLin, kWhite, 40)});
                 m.setNoDataColor(0x0000FF);
             });
         },
         {"Library ramp"}},
        // Changes that change nothing are no step.
        {[](LutEditorModel& m) {
             m.setColor(1, m.row(1).color);
             m.nudgeNode(0, true, false);
             m.releaseOnGraph(0, MouseButton::Left); // on a node
             m.pressOnTab(1, MouseButton::Right, ShiftKey);
             m.releaseOnGraph(50, MouseButton::Right);
             m.recorded("Nothing", [] {});
         },
         {}},
    };
    EditLog log;
    editor.addListener(&log);
    owner.received.push_back(editor.lutTable());
    for (const auto& c : cases) {
        log = {};
        const RampState start = editor.rampState();
        c.edit(editor);
        const RampState end = editor.rampState();
        ASSERT_EQ(log.names, c.names);
        if (c.names.empty()) {
            EXPECT_EQ(end, start);
            continue;
        }
        EXPECT_NE(end, start) << c.names[0];
        EXPECT_EQ(log.befores.front(), start) << c.names[0];
        EXPECT_EQ(log.afters.back(), end) << c.names[0];
        editor.restoreRamp(start);
        EXPECT_EQ(editor.rampState(), start) << c.names[0];
        EXPECT_EQ(editor.lutTable(), start.rows.toTable()) << c.names[0];
        editor.restoreRamp(end);
        EXPECT_EQ(editor.rampState(), end) << c.names[0];
    }
    EXPECT_TRUE(log.names.empty()) << "restoring records nothing";

    // What was added before the rows filled up is a step too.
    std::vector<DistributionRow> many;
    for (int v = 0; v < NodeRows::kMaxRows + 10; ++v)
        many.push_back({static_cast<float>(v), 1});
    editor.InitFromOrderedArray(std::move(many));
    EXPECT_THROW(editor.Indiv(), VbError);
    EXPECT_EQ(log.names, Names{"Individual values"});
    editor.removeListener(&log);
}

TEST_F(EditorModelTest, ANodeAtATypedValueSplitsItsIntervalWithTheRampsColourAndMethod) {
    const LutTable start = editor.lutTable();
    ClutTable ramp;
    ramp.setTable(start, 0);
    const struct {
        float x;
        int row; // of the new node; -1: nothing inserted
    } cases[] = {{20, 2},  {4.5f, 1}, {39.75f, 3}, {10, -1},           {0, -1},
                 {40, -1}, {-1, -1},  {41, -1},    {std::nanf(""), -1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.x);
        editor.SetLutTable(start);
        editor.moveOnGraph(0); // no drag: nothing moves
        const LutTable before = editor.rows().toTable();
        const int bars = listener.bars;
        EXPECT_EQ(editor.insertNodeAt(c.x), c.row >= 0);
        if (c.row < 0) {
            EXPECT_EQ(editor.rows().toTable(), before);
            EXPECT_EQ(listener.bars, bars);
            continue;
        }
        ASSERT_EQ(editor.rowCount(), 5);
        const NodeRow& added = editor.row(c.row);
        EXPECT_EQ(added.value, c.x);
        EXPECT_EQ(added.method, start[c.row - 1].method);
        EXPECT_EQ(added.color, ramp.ClutInterpolate(c.x));
        EXPECT_FALSE(added.locked);
        EXPECT_EQ(added.lower, start[c.row - 1].value);
        EXPECT_EQ(added.upper, start[c.row].value);
        EXPECT_EQ(editor.row(c.row - 1).upper, c.x);
        EXPECT_EQ(editor.row(c.row + 1).lower, c.x);
        EXPECT_EQ(editor.lutTable()[c.row].value, c.x) << "the bar is painted";
    }
}

} // namespace
} // namespace huebase
