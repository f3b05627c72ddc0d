#include "core/lut_ctl.h"

#include "color/color_picker.h"
#include "color/dialog_test_support.h"
#include "editor/lut_editor_window.h"
#include "support/service_recorder.h"

#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

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
        ctl.setObjectName("LUTCtl1");
        QObject::connect(&ctl, &LUTCtl::LUTChanged, [this](ColorValue c, const LutTable& t) {
            changed.push_back({c, t});
        });
        QObject::connect(&ctl, &LUTCtl::LUTDefined, [this](ColorValue c, const LutTable& t) {
            defined.push_back({c, t});
        });
    }
    template <typename T> T& inEditor(const char* name) {
        T* control = ctl.editor().findChild<T*>(name);
        if (control == nullptr)
            throw std::runtime_error(name);
        return *control;
    }
    std::vector<float> nodeValues() {
        std::vector<float> values;
        for (const NodeRow& row : ctl.editor().model().rows().all())
            values.push_back(row.value);
        return values;
    }

    LUTCtl ctl;
    std::vector<Event> changed;
    std::vector<Event> defined;
};

const LUTCtl::VariantRows kElevations{{-12.5, 3}, {0, 40}, {87.25, 9}, {310, 1}};

TEST(LUTCtl, CreatesItsEditorOnFirstUseWithTheBuiltInDistribution) {
    Control c;
    EXPECT_TRUE(c.ctl.getLUT().empty());
    EXPECT_EQ(c.ctl.ClutInterpolate(10.0f), 0);
    LutEditorWindow& editor = c.ctl.editor();
    EXPECT_EQ(&editor, &c.ctl.editor()) << "one editor for the control's life";
    EXPECT_EQ(editor.objectName(), "lut");
    EXPECT_EQ(editor.AltiArrays(), (std::vector<float>{0, 100, 200}));
    ASSERT_EQ(c.changed.size(), 1u);
    EXPECT_EQ(c.changed[0].table, c.ctl.getLUT());
    ASSERT_EQ(c.ctl.getLUT().size(), 2u);
    EXPECT_EQ(c.ctl.getLUT()[1].value, 200.0f);
    EXPECT_FALSE(c.ctl.loaded());
}

TEST(LUTCtl, SetValuesHandsEachLayoutToTheEditor) {
    Control ordered;
    ordered.ctl.SetValues(kElevations, -1, 2);
    EXPECT_TRUE(ordered.ctl.loaded());
    EXPECT_EQ(ordered.ctl.editor().AltiArrays(), (std::vector<float>{-12.5f, 0, 87.25f, 310}));

    Control hostTable; // the host's two-column rows
    hostTable.ctl.SetValues(std::vector<std::array<Variant, 2>>{{5, 1}, {9, 2}}, -1, 2);
    EXPECT_EQ(hostTable.ctl.editor().AltiArrays(), (std::vector<float>{5, 9}));

    Control straight; // no-data value -9999 kept off the low end
    straight.ctl.SetValues(LUTCtl::VariantRows{{7, -9999, 3, 7, 5}}, -9999, 1);
    EXPECT_EQ(straight.ctl.editor().DataMin(), 3.0f);
    EXPECT_EQ(straight.ctl.editor().DataMax(), 7.0f);

    Control grid;
    grid.ctl.SetValues(LUTCtl::VariantRows{{4, 2}, {4, 8}}, -1, 0);
    EXPECT_EQ(grid.ctl.editor().AltiArrays(), (std::vector<float>{2, 4, 8}));

    Control unknown;
    unknown.ctl.SetValues(kElevations, -1, 3);
    EXPECT_TRUE(unknown.ctl.loaded());
    EXPECT_EQ(unknown.ctl.editor().AltiArrays(), (std::vector<float>{0, 100, 200}));
}

TEST(LUTCtl, AFreshEditorConfirmedAtOnceColoursTheBlackToWhiteRamp) {
    Control c;
    c.ctl.SetValues(kElevations, -1, 2);
    QTest::mouseClick(&c.inEditor<QPushButton>("OK"), Qt::LeftButton);
    ASSERT_EQ(c.defined.size(), 1u);
    const LutTable& table = c.defined[0].table;
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table[0].value, -12.5f);
    EXPECT_EQ(table[1].value, 310.0f);
    EXPECT_EQ(c.ctl.ClutInterpolate(-12.5f), 0x000000);
    EXPECT_EQ(c.ctl.ClutInterpolate(310.0f), 0xFFFFFF);
    const float mid = (-12.5f + 310.0f) / 2;
    EXPECT_EQ(c.ctl.ClutInterpolate(mid), BlendColor(0, 0xFFFFFF, 0.5f));
    EXPECT_EQ(c.ctl.ClutInterpolate(-20.0f), 0) << "below the table: black";
    const std::vector<ValueColor> colours = c.ctl.ColorArray();
    ASSERT_EQ(colours.size(), 4u);
    for (const ValueColor& vc : colours)
        EXPECT_EQ(vc.color, BlendColor(0, 0xFFFFFF, (vc.value + 12.5f) / 322.5f)) << vc.value;
}

TEST(LUTCtl, NoDataColourIsReadLiveAndStoredWithTheNextTable) {
    Control c;
    c.ctl.SetValues(kElevations, -1, 2);
    c.inEditor<ColorPicker>("NoDataColor").setColor(0x3366FF);
    EXPECT_EQ(c.ctl.NoDataColor(), 0x3366FF);
    EXPECT_EQ(c.ctl.ClutInterpolate(400.0f), 0) << "stored colour unchanged until a table comes";
    c.ctl.editor().sendLutTable();
    EXPECT_EQ(c.changed.back().noData, 0x3366FF);
    EXPECT_EQ(c.ctl.ClutInterpolate(400.0f), 0x3366FF);
    c.ctl.OK_Clicked();
    EXPECT_EQ(c.defined.back().noData, 0x3366FF);
}

TEST(LUTCtl, OkHidesTheEditorAndKeepsTheProgramRunning) {
    testing::ServiceRecorder services;
    Control c;
    c.ctl.editor().show();
    c.ctl.editor().model().releaseOnGraph(150.0f, MouseButton::Left);
    QTest::mouseClick(&c.inEditor<QPushButton>("OK"), Qt::LeftButton);
    EXPECT_FALSE(c.ctl.editor().isVisible());
    EXPECT_FALSE(services.ended());
    ASSERT_EQ(c.defined.size(), 1u);
    EXPECT_EQ(c.defined[0].table.size(), 3u) << "the table is sent before it is final";
    EXPECT_EQ(c.ctl.getLUT().size(), 3u);
}

TEST(LUTCtl, ResetGivesTheHeldTableBackAndKeepsTheEditorOpen) {
    testing::ServiceRecorder services;
    Control c;
    c.ctl.SetValues(kElevations, -1, 2);
    c.ctl.editor().show();
    c.ctl.editor().model().releaseOnGraph(100.0f, MouseButton::Left);
    c.ctl.editor().model().releaseOnGraph(200.0f, MouseButton::Left);
    ASSERT_EQ(c.nodeValues().size(), 4u);
    QTest::mouseClick(&c.inEditor<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_EQ(c.nodeValues(), (std::vector<float>{-12.5f, 310.0f}));
    EXPECT_TRUE(c.ctl.editor().isVisible());
    EXPECT_FALSE(services.ended());
}

TEST(LUTCtl, CancelAndClosingTheEditorResetThenEndTheProgram) {
    {
        testing::ServiceRecorder services;
        Control c;
        c.ctl.editor().show();
        c.ctl.editor().model().releaseOnGraph(50.0f, MouseButton::Left);
        QTest::mouseClick(&c.inEditor<QPushButton>("Cancel"), Qt::LeftButton);
        EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
        EXPECT_EQ(c.nodeValues(), (std::vector<float>{0, 200})) << "reset before the end";
        EXPECT_TRUE(c.defined.empty());
    }
    {
        testing::ServiceRecorder services;
        Control c;
        c.ctl.editor().show();
        c.ctl.editor().close();
        EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
    }
    {
        testing::ServiceRecorder services;
        Control c;
        c.ctl.editor().show();
        QTest::keyClick(&c.ctl.editor(), Qt::Key_Escape);
        EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
    }
}

TEST(LUTCtl, ClickingTheIconOpensTheEditorModally) {
    testing::ServiceRecorder services;
    Control c;
    auto* icon = c.ctl.findChild<QToolButton*>("IconImg");
    ASSERT_NE(icon, nullptr);
    bool modal = false;
    testing::whenModalOpens<LutEditorWindow>([&](LutEditorWindow& editor) {
        modal = editor.isModal() && editor.isVisible();
        QTest::mouseClick(editor.findChild<QPushButton*>("OK"), Qt::LeftButton);
    });
    QTest::mouseClick(icon, Qt::LeftButton);
    EXPECT_TRUE(modal);
    EXPECT_EQ(c.defined.size(), 1u);
    EXPECT_FALSE(c.ctl.editor().isVisible());
}

} // namespace
} // namespace huebase
