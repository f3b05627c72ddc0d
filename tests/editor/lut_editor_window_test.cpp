#include "editor_window_support.h"

#include "color/color_picker.h"
#include "color/dialog_test_support.h"
#include "color/qt_color.h"
#include "editor/color_bar_view.h"
#include "editor/graph_readout.h"
#include "editor/value_rows_panel.h"
#include "testing_tables.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace huebase {
namespace {

using testing::ShownEditor;

TEST(LutEditorWindow, HasEveryNamedControl) {
    LutEditorWindow window;
    EXPECT_EQ(window.objectName(), "lut");
    EXPECT_EQ(window.windowTitle(), "Color LUT");
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    for (const char* name : {"Graph", "ColorBar", "GraphColorTab", "RowColContainer",
                             "RowColContainerSup", "VScroll1", "Xtxt", "NoDataColor"})
        EXPECT_NE(window.findChild<QWidget*>(name), nullptr) << name;
    EXPECT_NE(window.findChild<ColorTableRow*>("ColorTableRow1"), nullptr);
    EXPECT_NE(window.findChild<QScrollBar*>("VScroll1"), nullptr);
    EXPECT_NE(window.findChild<ColorPicker*>("NoDataColor"), nullptr);
    EXPECT_EQ(window.findChild<QLabel*>("Label1")->text(), "NO DATA");
    const std::pair<const char*, const char*> buttons[] = {
        {"Indiv", "Individual values"}, {"Command1", "Reset"}, {"Cancel", "Cancel"}, {"OK", "OK"},
        {"OpenBrowser", nullptr},       {"cmdSave", nullptr}};
    for (const auto& [name, caption] : buttons) {
        auto* b = window.findChild<QPushButton*>(name);
        ASSERT_NE(b, nullptr) << name;
        EXPECT_FALSE(b->accessibleName().isEmpty()) << name;
        if (caption != nullptr)
            EXPECT_EQ(b->text(), caption);
    }
}

TEST(LutEditorWindow, NodeButtonsCarryTheDesignTooltipUntilPlaced) {
    ShownEditor e;
    EXPECT_EQ(e.tabs().tabToolTip(0).toStdString(), LutEditorModel::kDesignTabToolTip);
    e.window.DefaultLUT();
    EXPECT_EQ(e.tabs().tabToolTip(1), "200");
    // Centred on their values, on the graph's scale.
    EXPECT_NEAR(e.tabCentre(1).x(), e.graphPoint(200).x(), 1);
    EXPECT_NEAR(e.tabCentre(0).x(), e.graphPoint(0).x(), 1);
}

TEST(LutEditorWindow, FreshDistributionShowsTheTwoEndRows) {
    ShownEditor e;
    e.window.DefaultLUT();
    ValueRowsPanel& panel = e.find<ValueRowsPanel>("");
    ASSERT_NE(panel.rowWidget(0), nullptr);
    ASSERT_NE(panel.rowWidget(1), nullptr);
    EXPECT_EQ(panel.rowWidget(2), nullptr);
    EXPECT_EQ(panel.rowWidget(0)->GetValue(), 0.0f);
    EXPECT_TRUE(panel.rowWidget(0)->GetLock());
    EXPECT_EQ(panel.rowWidget(1)->GetValue(), 200.0f);
    EXPECT_EQ(panel.rowWidget(1)->GetColor(), 0xFFFFFF);
    EXPECT_FALSE(e.find<QScrollBar>("VScroll1").isVisible());
}

TEST(LutEditorWindow, OnlyTheRowsInViewExistAndScrollingRebindsThem) {
    ShownEditor e;
    e.window.DefaultLUT();
    e.window.SetLutTable(testing::rampTable(2000, 0.0f, 1999.0f));
    auto& scroll = e.find<QScrollBar>("VScroll1");
    auto& sup = e.find<QWidget>("RowColContainerSup");
    auto& container = e.find<QWidget>("RowColContainer");
    EXPECT_TRUE(scroll.isVisible());
    EXPECT_EQ(container.height(), 2000 * ColorTableRow::rowHeight());
    EXPECT_EQ(scroll.maximum(), container.height() - sup.height());
    EXPECT_EQ(scroll.value(), 0);
    const auto widgets = e.window.findChildren<ColorTableRow*>("ColorTableRow1");
    EXPECT_LT(widgets.size(), 40);

    ValueRowsPanel& panel = e.find<ValueRowsPanel>("");
    scroll.setValue(scroll.maximum());
    EXPECT_EQ(container.y(), -scroll.maximum());
    ColorTableRow* last = panel.rowWidget(1999);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->GetValue(), 1999.0f);
    EXPECT_TRUE(last->GetLock());
    EXPECT_TRUE(last->geometry().translated(container.pos()).bottom() < sup.height());
    EXPECT_EQ(panel.rowWidget(0), nullptr);

    // A row scrolled into view is shown bound to its node.
    ColorTableRow& middle = panel.showRow(1000);
    EXPECT_EQ(middle.GetValue(), 1000.0f);
    EXPECT_EQ(middle.getMin(), 999.0f);
    EXPECT_EQ(middle.getMax(), 1001.0f);
    EXPECT_EQ(middle.GetColor(), e.model().row(1000).color);

    e.window.SetLutTable(testing::rampTable(3, 0.0f, 2.0f));
    EXPECT_FALSE(scroll.isVisible());
    EXPECT_EQ(container.y(), 0);
}

TEST(LutEditorWindow, RowWidgetEventsGoToTheNodeTheyShow) {
    ShownEditor e;
    e.window.DefaultLUT();
    e.window.SetLutTable(testing::rampTable(60, 0.0f, 590.0f)); // values 0, 10, ..., 590
    ValueRowsPanel& panel = e.find<ValueRowsPanel>("");
    ColorTableRow& row = panel.showRow(40);
    auto& edit = *row.findChild<QLineEdit*>("txtValue");
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, "405");
    e.tabs().setFocus();
    EXPECT_EQ(e.model().row(40).value, 405.0f);
    EXPECT_EQ(e.model().row(39).upper, 405.0f);
    EXPECT_EQ(e.model().row(41).lower, 405.0f);
    EXPECT_EQ(e.tabs().tabToolTip(40), "405");
    EXPECT_EQ(e.owner.received.size(), 1u) << "typing sends no table";

    panel.showRow(40).SetMode(MethodNone); // as choosing in the list does
    EXPECT_EQ(e.model().row(40).method, MethodNone);
    panel.showRow(40).findChild<ColorPicker*>("ColorPicker1")->setColor(0x0000FF);
    EXPECT_EQ(e.model().row(40).color, 0x0000FF);
    EXPECT_EQ(e.model().lutTable()[40].color, 0x0000FF);

    // Row 1's value never becomes row 0's upper bound.
    const float upper0 = e.model().row(0).upper;
    ColorTableRow& second = panel.showRow(1);
    auto& secondEdit = *second.findChild<QLineEdit*>("txtValue");
    secondEdit.setFocus();
    secondEdit.selectAll();
    QTest::keyClicks(&secondEdit, "5");
    e.tabs().setFocus();
    EXPECT_EQ(e.model().row(1).value, 5.0f);
    EXPECT_EQ(e.model().row(0).upper, upper0);
}

TEST(LutEditorWindow, ColourBarPixelsAreTheComputedSlices) {
    ShownEditor e;
    e.window.DefaultLUT();
    e.window.SetLutTable(
        {testing::node(0, MethodLin, 0x000000), testing::node(40, MethodLog, 0xFF0000),
         testing::node(90, MethodNone, 0x00FF00), testing::node(130, MethodExp, 0x0000FF),
         testing::node(200, MethodLin, 0xFFFFFF, 200)});
    auto& bar = e.find<ColorBarView>("ColorBar");
    const QImage image = bar.grab().toImage();
    const GraphCoordinates& c = e.model().graphCoordinates();
    const auto& slices = e.model().colorBar().slices();
    ASSERT_FALSE(slices.empty());
    int checked = 0;
    for (int column = 0; column < image.width(); ++column) {
        const double x = c.pixelToX(column + 0.5, bar.width());
        QColor expected = ColorBarView::background();
        bool nearEdge = false;
        for (const ColorSlice& s : slices) {
            const double edge0 = c.xToPixel(s.x0, bar.width()) - (column + 0.5);
            const double edge1 = c.xToPixel(s.x1, bar.width()) - (column + 0.5);
            nearEdge |= std::abs(edge0) < 1e-3 || std::abs(edge1) < 1e-3;
            if (s.x0 <= x && x < s.x1)
                expected = toQColor(s.color);
        }
        if (nearEdge)
            continue;
        for (const int y : {0, image.height() / 2, image.height() - 1})
            ASSERT_EQ(image.pixelColor(column, y), expected) << "column " << column << " x " << x;
        ++checked;
    }
    EXPECT_GT(checked, image.width() - 10);
    // The flat "None" stretch really is one colour from its node to the next.
    EXPECT_EQ(image.pixelColor(e.graphPoint(100).x(), 5), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(e.graphPoint(125).x(), 5), QColor(0, 255, 0));
}

// --- Graph gestures --------------------------------------------------------------

struct GraphEditing : ::testing::Test {
    void SetUp() override {
        e.window.DefaultLUT(); // 0 .. 200
        e.window.SetLutTable({testing::node(0, MethodLin, 0x000000),
                              testing::node(50, MethodLin, 0x0000FF),
                              testing::node(120, MethodLin, 0x00FF00),
                              testing::node(200, MethodLin, 0xFFFFFF, 200)});
    }
    void release(double x, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(&e.graph(), button, Qt::NoModifier, e.graphPoint(x, 10));
    }
    ShownEditor e;
};

TEST_F(GraphEditing, MovingShowsTheValueAndCountUnderThePointer) {
    const QPoint p = e.graphPoint(73, 40);
    ShownEditor::moveTo(e.graph(), p);
    const double x = e.graph().valueAt(p.x());
    const double y = e.graph().countAt(p.y());
    EXPECT_EQ(e.find<QLineEdit>("Xtxt").text().toStdString(), GraphReadout::xText(x));
    EXPECT_EQ(e.graph().toolTip().toStdString(), GraphReadout::toolTip(x, y));
    EXPECT_NEAR(e.find<QLineEdit>("Xtxt").text().toDouble(), 73, 1);
    EXPECT_EQ(e.values(), (std::vector<float>{0, 50, 120, 200})) << "no drag, nothing moves";
}

TEST_F(GraphEditing, ReleaseBetweenNodesInsertsOneWithTheRampColour) {
    release(85);
    const float x = e.valueAtPixelOf(85);
    ASSERT_EQ(e.values(), (std::vector<float>{0, 50, x, 120, 200}));
    EXPECT_NEAR(x, 85, 0.5);
    EXPECT_EQ(e.model().row(2).color, e.model().rows().rampColorAt(1, x));
    EXPECT_EQ(e.model().row(1).upper, x);
    EXPECT_EQ(e.model().row(3).lower, x);
    EXPECT_FALSE(e.model().row(2).locked);
    EXPECT_EQ(e.tabs().tabToolTip(2).toStdString(), floatText(x));
    EXPECT_NEAR(e.tabCentre(2).x(), e.graphPoint(85).x(), 1);
    ValueRowsPanel& panel = e.find<ValueRowsPanel>("");
    EXPECT_EQ(panel.rowWidget(2)->GetValue(), x);
    EXPECT_EQ(panel.rowWidget(4)->GetValue(), 200.0f);
}

TEST_F(GraphEditing, ReleaseOutsideTheNodesOrWithTheRightButtonAddsNothing) {
    release(-3);  // in the left margin
    release(203); // in the right margin
    release(85, Qt::RightButton);
    EXPECT_EQ(e.values(), (std::vector<float>{0, 50, 120, 200}));
}

TEST_F(GraphEditing, ShiftRightDragFollowsThePointerAndStopsShortOfTheNeighbours) {
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(1));
    QTest::mouseRelease(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(1));
    EXPECT_EQ(e.model().dragIndex(), 1);
    EXPECT_EQ(e.tabs().cursor().shape(), Qt::SizeHorCursor);

    ShownEditor::moveTo(e.graph(), e.graphPoint(90, 10));
    const float at90 = e.valueAtPixelOf(90);
    EXPECT_EQ(e.values(), (std::vector<float>{0, at90, 120, 200}));
    EXPECT_EQ(e.model().row(0).upper, at90);
    EXPECT_EQ(e.model().row(2).lower, at90);
    EXPECT_NEAR(e.tabCentre(1).x(), e.graphPoint(90).x(), 1);

    ShownEditor::moveTo(e.graph(), e.graphPoint(121, 10)); // past the neighbour: refused
    ShownEditor::moveTo(e.graph(), e.graphPoint(160, 10));
    EXPECT_EQ(e.values(), (std::vector<float>{0, at90, 120, 200}));

    release(100, Qt::RightButton); // ends the drag, adds nothing
    EXPECT_EQ(e.model().dragIndex(), -1);
    ShownEditor::moveTo(e.graph(), e.graphPoint(60, 10));
    EXPECT_EQ(e.values(), (std::vector<float>{0, at90, 120, 200}));
}

TEST_F(GraphEditing, DragWithTheButtonHeldEndsWhereTheButtonComesUp) {
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(2));
    const QPoint target(e.graphPoint(150).x(), e.tabCentre(2).y());
    ShownEditor::moveTo(e.tabs(), target, Qt::RightButton);
    QTest::mouseRelease(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, target);
    const float x = static_cast<float>(e.graph().valueAt(target.x()));
    EXPECT_EQ(e.values(), (std::vector<float>{0, 50, x, 200}));
    EXPECT_EQ(e.model().dragIndex(), -1);
}

TEST_F(GraphEditing, EndNodesNeitherDragNorDelete) {
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(1));
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(3));
    EXPECT_EQ(e.model().dragIndex(), -1) << "Shift+right on an end node cancels the drag";
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(0));
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(3));
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::AltModifier, e.tabCentre(1));
    EXPECT_EQ(e.values(), (std::vector<float>{0, 50, 120, 200}));
}

TEST_F(GraphEditing, CtrlRightDeletesAMiddleNode) {
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(1));
    EXPECT_EQ(e.values(), (std::vector<float>{0, 120, 200}));
    EXPECT_EQ(e.model().row(1).lower, 0.0f);
    EXPECT_EQ(e.find<ValueRowsPanel>("").rowWidget(3), nullptr);
}

TEST_F(GraphEditing, LeftClickOnANodePicksItsColour) {
    QTest::mousePress(&e.tabs(), Qt::LeftButton, Qt::NoModifier, e.tabCentre(2));
    EXPECT_EQ(e.tabs().cursor().shape(), Qt::ArrowCursor);
    QString shownGreen;
    testing::whenModalOpens<frmColorRef>([&](frmColorRef& dialog) {
        testing::DialogControls ui(dialog);
        shownGreen = ui.edit("txtG").text();
        ui.edit("txtR").setText("200");
        QTest::mouseClick(&ui.find<QPushButton>("OK"), Qt::LeftButton);
    });
    QTest::mouseRelease(&e.tabs(), Qt::LeftButton, Qt::NoModifier, e.tabCentre(2));
    EXPECT_EQ(shownGreen, "255");
    EXPECT_EQ(e.model().row(2).color, composeColor(200, 255, 0));
    const QImage tabs = e.tabs().grab().toImage();
    EXPECT_EQ(tabs.pixelColor(e.tabCentre(2)), QColor(200, 255, 0));
    const QImage bar = e.find<ColorBarView>("ColorBar").grab().toImage();
    EXPECT_EQ(bar.pixelColor(e.graphPoint(120).x() + 1, 3), QColor(200, 255, 0));
}

TEST_F(GraphEditing, KeyboardMovesAndDeletesTheCurrentNode) {
    NodeTabStrip& tabs = e.tabs();
    tabs.setFocus();
    QTest::keyClick(&tabs, Qt::Key_Home);
    QTest::keyClick(&tabs, Qt::Key_Tab);
    EXPECT_EQ(tabs.currentTab(), 1);
    EXPECT_TRUE(tabs.hasFocus());
    QTest::keyClick(&tabs, Qt::Key_Right);
    EXPECT_EQ(e.model().row(1).value, 51.0f);
    QTest::keyClick(&tabs, Qt::Key_Left, Qt::ShiftModifier); // a hundredth of 0..200
    EXPECT_EQ(e.model().row(1).value, 49.0f);
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(&tabs, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(e.model().row(1).value, 119.0f) << "stops short of the next node";
    QTest::keyClick(&tabs, Qt::Key_End);
    QTest::keyClick(&tabs, Qt::Key_Delete);
    EXPECT_EQ(e.model().rowCount(), 4) << "an end node stays";
    QTest::keyClick(&tabs, Qt::Key_Backtab);
    QTest::keyClick(&tabs, Qt::Key_Delete);
    EXPECT_EQ(e.values(), (std::vector<float>{0, 119, 200}));
}

TEST(LutEditorWindowIndiv, EveryDistinctValueBecomesANode) {
    ShownEditor e;
    e.window.InitFromOrderedArray({{10, 3}, {12, 1}, {17, 9}, {30, 2}, {42, 5}});
    QTest::mouseClick(&e.find<QPushButton>("Indiv"), Qt::LeftButton);
    EXPECT_EQ(e.values(), (std::vector<float>{10, 12, 17, 30, 42}));
    for (int k = 0; k < 5; ++k)
        EXPECT_NEAR(e.tabCentre(k).x(), e.graphPoint(e.model().row(k).value).x(), 1);
    QTest::mouseClick(&e.find<QPushButton>("Indiv"), Qt::LeftButton);
    EXPECT_EQ(e.model().rowCount(), 5) << "values on nodes are skipped";
}

} // namespace
} // namespace huebase
