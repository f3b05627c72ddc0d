#include "core/lut_ctl.h"

#include "color/color_picker.h"
#include "editor/lut_editor_window.h"
#include "support/modal_window.h"
#include "support/service_recorder.h"

#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace huebase {
namespace {

struct Event {
    ColorValue noData;
    LutTable table;
};

// A control with its events recorded.
struct Control {
    Control() {
        QObject::connect(&ctl, &LUTCtl::LUTChanged, [this](ColorValue c, const LutTable& t) {
            changed.push_back({c, t});
        });
        QObject::connect(&ctl, &LUTCtl::LUTDefined, [this](ColorValue c, const LutTable& t) {
            defined.push_back({c, t});
        });
    }
    // The window the control made on first use.
    LutEditorWindow& editor() { return dynamic_cast<LutEditorWindow&>(ctl.editor()); }
    void click(const char* button) {
        QTest::mouseClick(editor().findChild<QPushButton*>(button), Qt::LeftButton);
    }
    std::vector<float> nodeValues() {
        std::vector<float> values;
        for (const NodeRow& row : editor().model().rows().all())
            values.push_back(row.value);
        return values;
    }

    LUTCtl ctl{[] { return std::make_unique<LutEditorWindow>(); }};
    std::vector<Event> changed;
    std::vector<Event> defined;
};

const LUTCtl::VariantRows kElevations{{-12.5, 3}, {0, 40}, {87.25, 9}, {310, 1}};

TEST(LUTCtl, CreatesOneEditorOnFirstUseWithTheBuiltInDistribution) {
    Control c;
    EXPECT_TRUE(c.ctl.getLUT().empty());
    EXPECT_EQ(c.ctl.ClutInterpolate(10.0f), 0);
    EXPECT_EQ(c.editor().AltiArrays(), (std::vector<float>{0, 100, 200}));
    ASSERT_EQ(c.changed.size(), 1u);
    EXPECT_EQ(c.changed[0].table, c.ctl.getLUT());
    ASSERT_EQ(c.ctl.getLUT().size(), 2u);
    EXPECT_EQ(c.ctl.getLUT()[1].value, 200.0f);
    EXPECT_FALSE(c.ctl.loaded());
}

TEST(LUTCtl, SetValuesHandsEachLayoutToTheEditor) {
    const struct {
        LUTCtl::VariantRows values;
        std::int32_t extra;
        std::uint8_t mode;
        std::vector<float> altitudes;
    } rows[] = {
        {kElevations, -1, 2, {-12.5f, 0, 87.25f, 310}},  // (value, count) rows
        {{{7, -9999, 3, 7, 5}}, -9999, 1, {3, 3, 5, 7}}, // no data off the low end
        {{{4, 2}, {4, 8}}, -1, 0, {2, 4, 8}},            // a grid
        {kElevations, -1, 3, {0, 100, 200}},             // unknown: nothing
    };
    for (const auto& row : rows) {
        Control c;
        c.ctl.SetValues(row.values, row.extra, row.mode);
        EXPECT_TRUE(c.ctl.loaded());
        EXPECT_EQ(c.editor().AltiArrays(), row.altitudes) << int(row.mode);
    }
    Control hostTable;
    const std::vector<std::array<Variant, 2>> pairs{{5, 1}, {9, 2}};
    hostTable.ctl.SetValues(pairs, -1, 2);
    EXPECT_EQ(hostTable.editor().AltiArrays(), (std::vector<float>{5, 9}));
}

TEST(LUTCtl, TheIconOpensTheEditorModallyAndItsOkDefinesTheTableThatColoursEveryValue) {
    testing::ServiceRecorder services;
    Control c;
    c.ctl.SetValues(kElevations, -1, 2);
    bool modal = false;
    testing::whenModalOpens<LutEditorWindow>([&](LutEditorWindow& editor) {
        modal = editor.isModal() && editor.isVisible();
        c.click("OK");
    });
    QTest::mouseClick(c.ctl.findChild<QToolButton*>("IconImg"), Qt::LeftButton);
    EXPECT_TRUE(modal);
    EXPECT_FALSE(c.editor().isVisible());
    EXPECT_FALSE(services.ended());
    ASSERT_EQ(c.defined.size(), 1u);
    EXPECT_EQ(c.defined[0].table, c.ctl.getLUT());
    EXPECT_EQ(c.ctl.ClutInterpolate(-20.0f), 0) << "below the table: black";
    const std::vector<ValueColor> colours = c.ctl.ColorArray();
    ASSERT_EQ(colours.size(), 4u);
    for (const ValueColor& vc : colours)
        EXPECT_EQ(vc.color, BlendColor(0, 0xFFFFFF, (vc.value + 12.5f) / 322.5f)) << vc.value;
}

TEST(LUTCtl, NoDataColourIsReadLiveAndStoredWithTheNextTable) {
    Control c;
    c.ctl.SetValues(kElevations, -1, 2);
    c.editor().findChild<ColorPicker*>("NoDataColor")->setColor(0x3366FF);
    EXPECT_EQ(c.ctl.NoDataColor(), 0x3366FF);
    EXPECT_EQ(c.ctl.ClutInterpolate(400.0f), 0) << "stored colour unchanged until a table comes";
    c.editor().sendLutTable();
    EXPECT_EQ(c.changed.back().noData, 0x3366FF);
    EXPECT_EQ(c.ctl.ClutInterpolate(400.0f), 0x3366FF);
    c.ctl.OK_Clicked();
    EXPECT_EQ(c.defined.back().noData, 0x3366FF);
    c.editor().setNoDataColor(0x00AA00); // as the library hands one over
    EXPECT_EQ(c.editor().findChild<ColorPicker*>("NoDataColor")->color(), 0x00AA00);
    EXPECT_EQ(c.ctl.NoDataColor(), 0x00AA00);
}

TEST(LUTCtl, ResetGivesTheHeldTableBackAndOkSendsTheEditedOneBeforeDefiningIt) {
    testing::ServiceRecorder services;
    Control c;
    c.ctl.SetValues(kElevations, -1, 2);
    c.editor().show();
    c.editor().model().releaseOnGraph(100.0f, MouseButton::Left);
    c.editor().model().releaseOnGraph(200.0f, MouseButton::Left);
    ASSERT_EQ(c.nodeValues().size(), 4u);
    c.click("Command1");
    EXPECT_EQ(c.nodeValues(), (std::vector<float>{-12.5f, 310.0f}));
    EXPECT_TRUE(c.editor().isVisible());
    c.editor().model().releaseOnGraph(150.0f, MouseButton::Left);
    c.click("OK");
    ASSERT_EQ(c.defined.size(), 1u);
    EXPECT_EQ(c.defined[0].table.size(), 3u);
    EXPECT_EQ(c.ctl.getLUT(), c.defined[0].table);
    EXPECT_FALSE(services.ended());
}

TEST(LUTCtl, CancelClosingAndEscapeResetTheEditorThenEndTheProgram) {
    const std::function<void(Control&)> ways[] = {
        [](Control& c) { c.click("Cancel"); },
        [](Control& c) { c.editor().close(); },
        [](Control& c) { QTest::keyClick(&c.editor(), Qt::Key_Escape); },
    };
    for (const auto& leave : ways) {
        testing::ServiceRecorder services;
        Control c;
        c.editor().show();
        c.editor().model().releaseOnGraph(50.0f, MouseButton::Left);
        leave(c);
        EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
        EXPECT_EQ(c.nodeValues(), (std::vector<float>{0, 200})) << "reset before the end";
        EXPECT_TRUE(c.defined.empty());
    }
}

} // namespace
} // namespace huebase
