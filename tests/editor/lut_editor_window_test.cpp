#include "color/color_picker.h"
#include "color/dialog_test_support.h"
#include "color/qt_color.h"
#include "editor/color_bar_view.h"
#include "editor/color_table_row.h"
#include "editor/distribution_graph.h"
#include "editor/editor_fakes.h"
#include "editor/graph_readout.h"
#include "editor/lut_editor_window.h"
#include "editor/node_tab_strip.h"
#include "editor/value_rows_panel.h"
#include "support/accessible_names.h"

#include "support/service_recorder.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace huebase {
namespace {

using testing::node;

// A shown editor window with an owner that keeps what it is sent, reaching
// its controls by name and its graph by data coordinates.
struct ShownEditor {
    ShownEditor() : owner(window.model()) {
        window.resize(980, 600);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    template <typename T> T& find(const char* name) const {
        T* control = window.findChild<T*>(name);
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }

    LutEditorModel& model() { return window.model(); }
    DistributionGraph& graph() const { return find<DistributionGraph>("Graph"); }
    NodeTabStrip& tabs() const { return find<NodeTabStrip>("GraphColorTab"); }
    ValueRowsPanel& panel() const { return find<ValueRowsPanel>(""); }
    QPoint graphPoint(double x, double y = 0.0) const { return graph().pointAt(x, y).toPoint(); }
    // The data value the graph reads at the pixel nearest to x.
    float valueAtPixelOf(double x) const {
        return static_cast<float>(graph().valueAt(graphPoint(x).x()));
    }
    QPoint tabCentre(int k) const { return tabs().tabRect(k).center(); }

    // A pointer move, as mouse tracking delivers it.
    static void moveTo(QWidget& widget, QPoint pos, Qt::MouseButtons held = Qt::NoButton) {
        QMouseEvent move(QEvent::MouseMove, pos, widget.mapToGlobal(pos), Qt::NoButton, held,
                         Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }

    // Types into a row's value box and leaves it.
    void type(ColorTableRow& row, const char* text) {
        auto& edit = *row.findChild<QLineEdit*>("txtValue");
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        tabs().setFocus();
    }

    std::vector<float> values() const {
        std::vector<float> result;
        for (const NodeRow& row : window.model().rows().all())
            result.push_back(row.value);
        return result;
    }

    LutEditorWindow window;
    testing::FakeOwner owner;
};

// n "Lin" nodes at 0, step, 2 step, ...
LutTable rampTable(int n, float step) {
    LutTable table;
    for (int k = 0; k < n; ++k)
        table.push_back(node(k * step, MethodLin, composeColor(k % 256, 0, 0), (k + 1) * step));
    table.back().upper = table.back().value;
    return table;
}

TEST(LutEditorWindow, StaysOnTopWithItsCaptionsAndNamedButtons) {
    LutEditorWindow window;
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(window.findChild<QLabel*>("Label1")->text(), "NO DATA");
    EXPECT_EQ(window.findChild<QPushButton*>("Indiv")->text(), "Individual values");
    EXPECT_EQ(window.findChild<QPushButton*>("Command1")->text(), "Reset");
    for (const char* name : {"Indiv", "Command1", "Cancel", "OK", "OpenBrowser", "cmdSave"}) {
        auto* button = window.findChild<QPushButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_FALSE(button->accessibleName().isEmpty()) << name;
    }
}

TEST(LutEditorWindow, FreshRowsAndButtonsThenOnlyTheRowsInViewExistForLongTables) {
    ShownEditor e;
    EXPECT_EQ(e.tabs().tabToolTip(0).toStdString(), LutEditorModel::kDesignTabToolTip);
    e.window.DefaultLUT();
    EXPECT_EQ(e.tabs().tabToolTip(1), "200");
    EXPECT_NEAR(e.tabCentre(1).x(), e.graphPoint(200).x(), 1) << "centred on the value";
    EXPECT_NEAR(e.tabCentre(0).x(), e.graphPoint(0).x(), 1);
    auto& scroll = e.find<QScrollBar>("VScroll1");
    ASSERT_NE(e.panel().rowWidget(1), nullptr);
    EXPECT_EQ(e.panel().rowWidget(2), nullptr);
    EXPECT_TRUE(e.panel().rowWidget(0)->GetLock());
    EXPECT_TRUE(e.panel().rowWidget(1)->GetLock());
    EXPECT_EQ(e.panel().rowWidget(1)->GetColor(), 0xFFFFFF);
    EXPECT_FALSE(scroll.isVisible());

    e.window.SetLutTable(rampTable(2000, 1));
    auto& sup = e.find<QWidget>("RowColContainerSup");
    auto& container = e.find<QWidget>("RowColContainer");
    EXPECT_TRUE(scroll.isVisible());
    EXPECT_EQ(container.height(), 2000 * ColorTableRow::rowHeight());
    EXPECT_EQ(scroll.maximum(), container.height() - sup.height());
    EXPECT_EQ(scroll.value(), 0);
    EXPECT_LT(e.window.findChildren<ColorTableRow*>("ColorTableRow1").size(), 40);

    scroll.setValue(scroll.maximum());
    EXPECT_EQ(container.y(), -scroll.maximum());
    ColorTableRow* last = e.panel().rowWidget(1999);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->GetValue(), 1999.0f);
    EXPECT_TRUE(last->GetLock());
    EXPECT_LT(last->geometry().translated(container.pos()).bottom(), sup.height());
    EXPECT_EQ(e.panel().rowWidget(0), nullptr);

    const int fit = sup.height() / ColorTableRow::rowHeight();
    e.window.SetLutTable(rampTable(fit + 1, 1));
    EXPECT_TRUE(scroll.isVisible()) << "one row more than fits";
    e.window.SetLutTable(rampTable(fit, 1));
    EXPECT_FALSE(scroll.isVisible());
    EXPECT_EQ(container.y(), 0);
}

TEST(LutEditorWindow, RowWidgetEventsGoToTheNodeTheyShow) {
    ShownEditor e;
    e.window.DefaultLUT();
    e.window.SetLutTable(rampTable(60, 10));
    e.type(e.panel().showRow(40), "405");
    EXPECT_EQ(e.model().row(40).value, 405.0f);
    EXPECT_EQ(e.model().row(39).upper, 405.0f);
    EXPECT_EQ(e.model().row(41).lower, 405.0f);
    EXPECT_EQ(e.tabs().tabToolTip(40), "405");
    EXPECT_EQ(e.owner.received.size(), 1u) << "typing sends no table";

    e.panel().showRow(40).SetMode(MethodNone); // as choosing in the list does
    EXPECT_EQ(e.model().row(40).method, MethodNone);
    e.panel().showRow(40).findChild<ColorPicker*>("ColorPicker1")->setColor(0x0000FF);
    EXPECT_EQ(e.model().lutTable()[40].color, 0x0000FF);

    const float upper0 = e.model().row(0).upper;
    e.type(e.panel().showRow(1), "5");
    EXPECT_EQ(e.model().row(1).value, 5.0f);
    EXPECT_EQ(e.model().row(0).upper, upper0) << "row 1's value never reaches row 0";
}

TEST(LutEditorWindow, ColourBarPixelsAreTheComputedSlices) {
    ShownEditor e;
    e.window.DefaultLUT();
    e.window.SetLutTable({node(0, MethodLin, 0x000000), node(40, MethodLog, 0xFF0000),
                          node(90, MethodNone, 0x00FF00), node(130, MethodExp, 0x0000FF),
                          node(200, MethodLin, 0xFFFFFF, 200)});
    auto& bar = e.find<ColorBarView>("ColorBar");
    const QImage image = bar.grab().toImage();
    const GraphCoordinates& c = e.model().graphCoordinates();
    const auto& slices = e.model().colorBar().slices();
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
}

TEST(LutEditorWindow, IndividualValuesMakesEveryDistinctValueANode) {
    ShownEditor e;
    e.model().InitFromOrderedArray({{10, 3}, {12, 1}, {17, 9}, {30, 2}, {42, 5}});
    QTest::mouseClick(&e.find<QPushButton>("Indiv"), Qt::LeftButton);
    EXPECT_EQ(e.values(), (std::vector<float>{10, 12, 17, 30, 42}));
    EXPECT_EQ(e.model().lutTable().size(), 5u) << "the bar was repainted";
    for (int k = 0; k < 5; ++k)
        EXPECT_NEAR(e.tabCentre(k).x(), e.graphPoint(e.model().row(k).value).x(), 1);
    QTest::mouseClick(&e.find<QPushButton>("Indiv"), Qt::LeftButton);
    EXPECT_EQ(e.model().rowCount(), 5) << "values on nodes are skipped";
}

// What an assistive client finds wrong in the editor: a missing or shared
// name, or a row control whose node number does not match what it shows.
std::vector<std::string> accessibilityFaults(ShownEditor& e) {
    std::vector<std::string> faults = testing::accessibleNameFaults(e.window);
    const QRegularExpression rowName("^Node (\\d+) (value|method)$");
    for (const testing::AccessibleControl& control : testing::operatedControls(e.window)) {
        const QRegularExpressionMatch match = rowName.match(control.name);
        if (!match.hasMatch())
            continue;
        const int k = match.captured(1).toInt() - 1;
        const QString shown = k < 0 || k >= e.model().rowCount() ? "no such node"
                              : match.captured(2) == "value"
                                  ? QString::fromStdString(floatText(e.model().row(k).value))
                                  : QString(methodName(e.model().row(k).method));
        if (control.value != shown)
            faults.push_back(control.name.toStdString() + " shows '" + control.value.toStdString() +
                             "', not '" + shown.toStdString() + "'");
    }
    return faults;
}

TEST(LutEditorWindow, EveryControlIsNamedOnceAndRowsByTheNodeTheyShowAsTheyChange) {
    ShownEditor e;
    e.window.DefaultLUT(); // 0 .. 200
    e.window.SetLutTable(rampTable(5, 40));
    const auto names = [&] {
        QStringList all;
        for (const testing::AccessibleControl& control : testing::operatedControls(e.window))
            all << control.name;
        return all;
    };
    const std::vector<std::string> none;
    EXPECT_EQ(accessibilityFaults(e), none);
    EXPECT_TRUE(names().contains("Node 5 colour"));

    QTest::mouseRelease(&e.graph(), Qt::LeftButton, Qt::NoModifier, e.graphPoint(60, 10));
    ASSERT_EQ(e.model().rowCount(), 6);
    EXPECT_EQ(accessibilityFaults(e), none) << "after adding";
    EXPECT_TRUE(names().contains("Node 6 value"));

    e.model().removeNode(1);
    EXPECT_EQ(accessibilityFaults(e), none) << "after removing";
    EXPECT_FALSE(names().contains("Node 6 value"));

    e.window.SetLutTable(rampTable(60, 3));
    auto& scroll = e.find<QScrollBar>("VScroll1");
    scroll.setValue(scroll.maximum());
    EXPECT_EQ(accessibilityFaults(e), none) << "after scrolling";
    EXPECT_TRUE(names().contains("Node 60 method"));
    EXPECT_FALSE(names().contains("Node 1 method"));
}

struct GraphEditing : ::testing::Test {
    void SetUp() override {
        e.window.DefaultLUT(); // 0 .. 200
        e.window.SetLutTable({node(0, MethodLin, 0x000000), node(50, MethodLin, 0x0000FF),
                              node(120, MethodLin, 0x00FF00), node(200, MethodLin, 0xFFFFFF, 200)});
    }
    void release(double x, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(&e.graph(), button, Qt::NoModifier, e.graphPoint(x, 10));
    }
    ShownEditor e;
    const std::vector<float> start{0, 50, 120, 200};
};

TEST_F(GraphEditing, MovingShowsTheValueAndCountUnderThePointer) {
    const QPoint p = e.graphPoint(73, 40);
    ShownEditor::moveTo(e.graph(), p);
    const double x = e.graph().valueAt(p.x());
    EXPECT_EQ(e.find<QLineEdit>("Xtxt").text().toStdString(), GraphReadout::xText(x));
    EXPECT_EQ(e.graph().toolTip().toStdString(),
              GraphReadout::toolTip(x, e.graph().countAt(p.y())));
    EXPECT_NEAR(e.find<QLineEdit>("Xtxt").text().toDouble(), 73, 1);
    EXPECT_EQ(e.values(), start) << "no drag, nothing moves";
}

TEST_F(GraphEditing, ReleaseBetweenNodesInsertsOneWithTheRampColourElsewhereNothing) {
    release(-3);  // in the left margin
    release(203); // in the right margin
    release(85, Qt::RightButton);
    EXPECT_EQ(e.values(), start);

    release(85);
    const float x = e.valueAtPixelOf(85);
    ASSERT_EQ(e.values(), (std::vector<float>{0, 50, x, 120, 200}));
    EXPECT_EQ(e.model().row(2).color, e.model().rows().rampColorAt(1, x));
    EXPECT_EQ(e.tabs().tabToolTip(2).toStdString(), floatText(x));
    EXPECT_NEAR(e.tabCentre(2).x(), e.graphPoint(85).x(), 1);
    EXPECT_EQ(e.panel().rowWidget(2)->GetValue(), x);
    EXPECT_EQ(e.panel().rowWidget(4)->GetValue(), 200.0f);
}

TEST_F(GraphEditing, ShiftRightDragFollowsThePointerAndStopsShortOfTheNeighbours) {
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(1));
    EXPECT_EQ(e.tabs().cursor().shape(), Qt::SizeHorCursor);
    EXPECT_FALSE(e.model().clickOpensColorChoice());

    ShownEditor::moveTo(e.graph(), e.graphPoint(90, 10));
    const std::vector<float> moved{0, e.valueAtPixelOf(90), 120, 200};
    EXPECT_EQ(e.values(), moved);
    EXPECT_NEAR(e.tabCentre(1).x(), e.graphPoint(90).x(), 1);
    ShownEditor::moveTo(e.graph(), e.graphPoint(121, 10)); // past the neighbour: refused
    ShownEditor::moveTo(e.graph(), e.graphPoint(160, 10));
    EXPECT_EQ(e.values(), moved);

    release(100, Qt::RightButton); // ends the drag, adds nothing
    EXPECT_EQ(e.model().dragIndex(), -1);
    ShownEditor::moveTo(e.graph(), e.graphPoint(60, 10));
    EXPECT_EQ(e.values(), moved);

    // With the button held the drag ends where it comes up.
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(2));
    const QPoint target(e.graphPoint(150).x(), e.tabCentre(2).y());
    ShownEditor::moveTo(e.tabs(), target, Qt::RightButton);
    QTest::mouseRelease(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, target);
    EXPECT_EQ(e.model().row(2).value, static_cast<float>(e.graph().valueAt(target.x())));
    EXPECT_EQ(e.model().dragIndex(), -1);
}

TEST_F(GraphEditing, CtrlRightDeletesAMiddleNodeButEndNodesNeitherDragNorDelete) {
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(1));
    QTest::mousePress(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(3));
    EXPECT_EQ(e.model().dragIndex(), -1) << "Shift+right on an end node cancels the drag";
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(0));
    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(3));
    for (Qt::KeyboardModifiers other :
         {Qt::KeyboardModifiers(Qt::AltModifier), {}, Qt::ShiftModifier | Qt::ControlModifier})
        QTest::mouseClick(&e.tabs(), Qt::RightButton, other, e.tabCentre(1));
    EXPECT_EQ(e.values(), start);
    EXPECT_EQ(e.model().dragIndex(), -1);

    QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(1));
    EXPECT_EQ(e.values(), (std::vector<float>{0, 120, 200}));
    EXPECT_EQ(e.model().row(1).lower, 0.0f);
    EXPECT_EQ(e.panel().rowWidget(3), nullptr);
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
    EXPECT_EQ(e.tabs().grab().toImage().pixelColor(e.tabCentre(2)), QColor(200, 255, 0));
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
    QTest::keyClick(&tabs, Qt::Key_End);
    QTest::keyClick(&tabs, Qt::Key_Left);
    QTest::keyClick(&tabs, Qt::Key_Delete);
    EXPECT_EQ(e.values(), (std::vector<float>{0, 49, 120, 200})) << "an end node stays";
    QTest::keyClick(&tabs, Qt::Key_Backtab);
    QTest::keyClick(&tabs, Qt::Key_Delete);
    EXPECT_EQ(e.values(), (std::vector<float>{0, 49, 200}));
}

struct UndoRedo : GraphEditing {
    QPushButton& undo() { return e.find<QPushButton>("Undo"); }
    QPushButton& redo() { return e.find<QPushButton>("Redo"); }
    // The ramp the controls show: row values, tab tooltips and no-data swatch.
    std::vector<QString> shown() {
        std::vector<QString> result;
        for (int k = 0; k < e.model().rowCount(); ++k)
            result.push_back(QString::number(e.panel().showRow(k).GetValue()) + " " +
                             e.tabs().tabToolTip(k));
        result.push_back(QString::number(e.find<ColorPicker>("NoDataColor").color()));
        return result;
    }
};

TEST_F(UndoRedo, EveryKindOfChangeIsOneStepTheButtonsUndoAndRedo) {
    const struct {
        const char* name;
        std::function<void(ShownEditor&)> change;
    } cases[] = {
        {"Add node", [this](ShownEditor&) { release(85); }},
        {"Delete node",
         [](ShownEditor& e) {
             QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ControlModifier, e.tabCentre(1));
         }},
        {"Move node",
         [this](ShownEditor& e) {
             QTest::mouseClick(&e.tabs(), Qt::RightButton, Qt::ShiftModifier, e.tabCentre(1));
             for (double x : {70, 90, 110})
                 ShownEditor::moveTo(e.graph(), e.graphPoint(x, 10));
             release(110, Qt::RightButton);
         }},
        {"Move node",
         [](ShownEditor& e) {
             e.tabs().setFocus();
             e.tabs().setCurrentTab(1);
             QTest::keyClick(&e.tabs(), Qt::Key_Left);
         }},
        {"Set value", [](ShownEditor& e) { e.type(e.panel().showRow(1), "60"); }},
        {"Set method", [](ShownEditor& e) { e.panel().showRow(1).SetMode(MethodNone); }},
        {"Set colour",
         [](ShownEditor& e) {
             e.panel().showRow(1).findChild<ColorPicker*>("ColorPicker1")->setColor(0x00FFFF);
         }},
        {"Set no-data colour",
         [](ShownEditor& e) { e.find<ColorPicker>("NoDataColor").setColor(0x00FF00); }},
        {"Individual values",
         [](ShownEditor& e) { QTest::mouseClick(&e.find<QPushButton>("Indiv"), Qt::LeftButton); }},
        {"Reset",
         [](ShownEditor& e) {
             QTest::mouseClick(&e.find<QPushButton>("Command1"), Qt::LeftButton);
         }},
    };
    EXPECT_FALSE(undo().isEnabled());
    EXPECT_FALSE(redo().isEnabled());
    for (const auto& c : cases) {
        const RampState before = e.model().rampState();
        const std::vector<QString> shownBefore = shown();
        c.change(e);
        const RampState after = e.model().rampState();
        const std::vector<QString> shownAfter = shown();
        ASSERT_NE(after, before) << c.name;
        EXPECT_EQ(undo().toolTip(), QString("Undo ") + c.name);
        EXPECT_TRUE(undo().isEnabled());
        EXPECT_FALSE(redo().isEnabled());

        QTest::mouseClick(&undo(), Qt::LeftButton);
        EXPECT_EQ(e.model().rampState(), before) << c.name;
        EXPECT_EQ(e.model().lutTable(), before.rows.toTable()) << c.name;
        EXPECT_EQ(shown(), shownBefore) << c.name;
        EXPECT_EQ(redo().toolTip(), QString("Redo ") + c.name);
        ASSERT_TRUE(redo().isEnabled());

        QTest::mouseClick(&redo(), Qt::LeftButton);
        EXPECT_EQ(e.model().rampState(), after) << c.name;
        EXPECT_EQ(shown(), shownAfter) << c.name;
        EXPECT_FALSE(redo().isEnabled());
    }
    EXPECT_EQ(e.owner.received.size(), 1u) << "undo and redo send no table, as SetLutTable";
}

TEST_F(UndoRedo, KeysUndoTheRampExceptTheTextBeingTypedAndAThousandStepsGoBack) {
    QLineEdit& box = *e.panel().showRow(1).findChild<QLineEdit*>("txtValue");
    e.type(e.panel().showRow(1), "60");
    box.setFocus();
    QTest::keyClicks(&box, "7");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "60") << "the box undoes its own typing first";
    EXPECT_EQ(e.model().row(1).value, 60.0f);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(e.model().row(1).value, 50.0f) << "then the ramp";
    EXPECT_EQ(box.text(), "50");
    QTest::keyClick(&box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(e.model().row(1).value, 60.0f);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(e.model().row(1).value, 60.0f);

    const RampState start = e.model().rampState();
    for (int k = 1; k <= 1000; ++k)
        e.model().setColor(2, k);
    for (int k = 0; k < 1000; ++k)
        QTest::keyClick(&e.tabs(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(e.model().rampState(), start);
    QTest::keyClick(&e.tabs(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(e.model().row(1).value, 60.0f) << "steps beyond a thousand are let go";
}

TEST(LutEditorWindow, CountScaleAndRampFillRedrawTheGraphAndAreReported) {
    ShownEditor e;
    e.model().InitFromOrderedArray({{0, 1}, {100, 9999}, {200, 99}});
    const ColorValue green = composeColor(200, 255, 0);
    e.window.SetLutTable({node(0, MethodLin, green), node(200, MethodLin, green, 200)});
    QSignalSpy changed(&e.window, &LutEditorWindow::graphSettingsChanged);
    const auto colourAt = [&](double x, double count) {
        return e.graph().grab().toImage().pixelColor(e.graphPoint(x, count));
    };
    // Half way to the spike the line stands near count 5000 when linear and
    // near count 140 on the logarithmic scale, where 99 is half way up to 9999.
    EXPECT_NE(colourAt(50, 20), QColor(200, 255, 0)) << "no fill by default";

    auto& scale = e.find<QComboBox>("CountScale");
    scale.setFocus();
    QTest::keyClick(&scale, Qt::Key_End);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(e.window.graphSettings(), (GraphSettings{CountScale(CountScale::Kind::Logarithmic)}));
    EXPECT_NEAR(e.graphPoint(50, 99).y(),
                e.graphPoint(50, 9999).y() / 2 + e.graphPoint(50, 0).y() / 2, 1);

    QTest::mouseClick(&e.find<QCheckBox>("RampFill"), Qt::LeftButton);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_TRUE(e.window.graphSettings().rampFill);
    EXPECT_EQ(colourAt(50, 20), QColor(200, 255, 0)) << "under the line";
    EXPECT_NE(colourAt(50, 300), QColor(200, 255, 0)) << "above the line";
    EXPECT_NE(colourAt(-4, 0.5), QColor(200, 255, 0)) << "outside the ramp";

    ShownEditor::moveTo(e.graph(), e.graphPoint(80, 5));
    EXPECT_EQ(e.graph().toolTip().toStdString(), "Value 100, count 9999");

    e.window.setGraphSettings({});
    EXPECT_EQ(e.find<QComboBox>("CountScale").currentText(), "Linear");
    EXPECT_NE(colourAt(50, 20), QColor(200, 255, 0));
    EXPECT_EQ(changed.count(), 2) << "only the user's changes are reported";
}

TEST_F(GraphEditing, InsertAsksForAValueAndRefusesWhereNoNodeCanGo) {
    testing::ServiceRecorder services;
    const float x = 85.5f;
    const ColorValue rampColor = e.model().rows().rampColorAt(1, x);
    const std::vector<float> added{0, 50, x, 120, 200};
    const struct {
        const char* typed;
        bool accept;
        std::vector<float> values;
        const char* message; // the start of it; empty: none
    } cases[] = {
        {"", false, start, ""},
        {"abc", true, start, "\"abc\" is not a number"},
        {"120", true, start, "There is already a node at 120"},
        {"-5", true, start, "-5 lies outside the nodes (0 to 200)"},
        {" 85.5 ", true, added, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        const std::size_t messages = services.messages().size();
        QString label;
        testing::whenModalOpens<QInputDialog>([&](QInputDialog& dialog) {
            label = dialog.labelText();
            dialog.setTextValue(c.typed);
            c.accept ? dialog.accept() : dialog.reject();
        });
        e.window.activateWindow(); // back from the input, as a window manager does
        ASSERT_TRUE(QTest::qWaitForWindowActive(&e.window));
        e.tabs().setFocus();
        QTest::keyClick(&e.tabs(), Qt::Key_Insert);
        EXPECT_EQ(label, "Value of the new node, between 0 and 200:");
        EXPECT_EQ(e.values(), c.values);
        const std::string message = c.message;
        if (message.empty()) {
            EXPECT_EQ(services.messages().size(), messages);
        } else {
            ASSERT_EQ(services.messages().size(), messages + 1);
            EXPECT_EQ(services.messages().back().text.rfind(message, 0), 0u)
                << services.messages().back().text;
        }
    }
    EXPECT_EQ(e.model().row(2).color, rampColor);
    EXPECT_EQ(e.model().row(2).method, MethodLin);
    EXPECT_EQ(e.panel().rowWidget(2)->GetValue(), x);
}

TEST_F(GraphEditing, TheGraphsAndTheRowsContextMenusAskWithASuggestedValue) {
    const QPoint onGraph = e.graphPoint(85, 10);
    const struct {
        QWidget* widget;
        QPoint pos;
        std::string suggested;
    } places[] = {
        {&e.graph(), onGraph, GraphReadout::xText(e.graph().valueAt(onGraph.x()))},
        {e.panel().rowWidget(1)->findChild<QComboBox*>("cmbMethod"), {4, 4}, "85"},
        {e.panel().rowWidget(3)->findChild<ColorPicker*>("ColorPicker1"), {4, 4}, "160"},
    };
    for (const auto& place : places) {
        SCOPED_TRACE(place.suggested);
        QTimer::singleShot(50, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr) << "no menu";
            menu->setActiveAction(menu->actions().front());
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QString suggested;
        testing::whenModalOpens<QInputDialog>([&](QInputDialog& dialog) {
            suggested = dialog.textValue();
            dialog.reject();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place.pos,
                                place.widget->mapToGlobal(place.pos));
        QApplication::sendEvent(place.widget, &event);
        EXPECT_EQ(suggested.toStdString(), place.suggested);
    }
    EXPECT_EQ(e.values(), start);
}

} // namespace
} // namespace huebase
