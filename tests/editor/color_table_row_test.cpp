#include "editor/color_table_row.h"

#include "color/color_picker.h"
#include "core/lut_node.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace huebase {
namespace {

// A row in a shown window beside a second field, so that the value box can
// really gain and lose the keyboard focus.
struct ShownRow {
    ShownRow() {
        row = new ColorTableRow(&window);
        other = new QLineEdit(&window);
        other->move(0, 40);
        window.resize(300, 80);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QObject::connect(row, &ColorTableRow::offsetChanged,
                         [this](float v) { offsets.push_back(v); });
        QObject::connect(row, &ColorTableRow::colorChanged,
                         [this](ColorValue c) { colors.push_back(c); });
        QObject::connect(row, &ColorTableRow::methodChanged,
                         [this](std::uint8_t m) { methods.push_back(m); });
    }

    QLineEdit& txtValue() const { return *row->findChild<QLineEdit*>("txtValue"); }
    QComboBox& cmbMethod() const { return *row->findChild<QComboBox*>("cmbMethod"); }
    ColorPicker& swatch() const { return *row->findChild<ColorPicker*>("ColorPicker1"); }

    // Types text into the value box and leaves it.
    void type(const QString& text) {
        txtValue().setFocus();
        txtValue().selectAll();
        QTest::keyClicks(&txtValue(), text);
        other->setFocus();
    }

    // Declared before the window: its destruction moves the focus, and
    // leaving the value box still reports.
    std::vector<float> offsets;
    std::vector<ColorValue> colors;
    std::vector<int> methods;
    QWidget window;
    ColorTableRow* row = nullptr;
    QLineEdit* other = nullptr;
};

TEST(ColorTableRow, StartsWithTheSixMethodsAndLinAndOnlyColourAndModeRaiseEvents) {
    ShownRow r;
    QStringList names;
    for (int i = 0; i < r.cmbMethod().count(); ++i)
        names << r.cmbMethod().itemText(i);
    EXPECT_EQ(names, (QStringList{"Lin", "Log", "Exp", "Log+", "Exp+", "None"}));
    EXPECT_EQ(r.cmbMethod().currentIndex(), 0);
    EXPECT_EQ(r.row->GetMode(), 0);

    r.row->SetLock(true);
    EXPECT_FALSE(r.txtValue().isEnabled());
    r.row->SetLock(false);
    EXPECT_TRUE(r.txtValue().isEnabled());
    r.row->SetValue(1.0f / 3.0f);
    EXPECT_EQ(r.txtValue().text().toStdString(), floatText(1.0f / 3.0f));
    EXPECT_TRUE(r.offsets.empty());

    r.row->setColor(0x123456);
    EXPECT_EQ(r.swatch().color(), 0x123456);
    r.row->SetMode(MethodExpPlus);
    EXPECT_EQ(r.cmbMethod().currentText(), "Exp+");
    EXPECT_THROW(r.row->SetMode(6), VbError);

    r.row->SetMode(MethodLin);
    r.cmbMethod().setFocus();
    QTest::keyClick(&r.cmbMethod(), Qt::Key_Down);
    EXPECT_EQ(r.row->GetMode(), MethodLog);
    r.swatch().setColor(0x00FF00); // what the colour dialog's OK does
    EXPECT_EQ(r.row->GetColor(), 0x00FF00);
    EXPECT_EQ(r.colors, (std::vector<ColorValue>{0x123456, 0x00FF00}));
    EXPECT_EQ(r.methods, (std::vector<int>{MethodExpPlus, MethodLin, MethodLog}));
    EXPECT_TRUE(r.offsets.empty());
}

TEST(ColorTableRow, LeavingTheValueBoxValidatesAgainstTheBounds) {
    ShownRow r;
    r.row->setMin(100.0f);
    r.row->setMax(200.0f);
    r.row->SetValue(150.0f);

    r.type("abc"); // not a number: kept as typed, nothing stored or raised
    EXPECT_EQ(r.txtValue().text(), "abc");
    EXPECT_EQ(r.row->GetValue(), 150.0f);
    EXPECT_TRUE(r.offsets.empty());

    r.type("175");
    r.type("200"); // the upper bound itself: one below it
    EXPECT_EQ(r.txtValue().text(), "199");
    r.type("100"); // the lower bound itself: one above it
    EXPECT_EQ(r.txtValue().text(), "101");
    EXPECT_EQ(r.offsets, (std::vector<float>{175.0f, 199.0f, 101.0f}));
    EXPECT_EQ(r.row->GetValue(), 101.0f);

    // Enter takes the value without leaving the box.
    r.txtValue().setFocus();
    r.txtValue().selectAll();
    QTest::keyClicks(&r.txtValue(), "140");
    QTest::keyClick(&r.txtValue(), Qt::Key_Return);
    EXPECT_EQ(r.offsets.back(), 140.0f);
    EXPECT_TRUE(r.txtValue().hasFocus());

    r.row->SetLock(true); // locked rows are not validated
    r.row->commitValue();
    EXPECT_EQ(r.offsets.size(), 4u);
}

} // namespace
} // namespace huebase
