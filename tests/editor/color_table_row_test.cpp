#include "editor/color_table_row.h"

#include "color/color_picker.h"
#include "color/dialog_test_support.h"
#include "core/lut_node.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
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

TEST(ColorTableRow, StartsWithTheSixMethodsAndLin) {
    ColorTableRow row;
    auto* list = row.findChild<QComboBox*>("cmbMethod");
    ASSERT_NE(list, nullptr);
    QStringList names;
    for (int i = 0; i < list->count(); ++i)
        names << list->itemText(i);
    EXPECT_EQ(names, (QStringList{"Lin", "Log", "Exp", "Log+", "Exp+", "None"}));
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_EQ(row.GetMode(), 0);
    EXPECT_NE(row.findChild<QLineEdit*>("txtValue"), nullptr);
    EXPECT_NE(row.findChild<ColorPicker*>("ColorPicker1"), nullptr);
}

TEST(ColorTableRow, PropertiesShowInTheControlsAndOnlyColourAndModeRaiseEvents) {
    ShownRow r;
    r.row->setMin(-5.5f);
    r.row->setMax(7.25f);
    r.row->SetValue(1234.5f);
    r.row->SetLock(true);
    EXPECT_EQ(r.row->getMin(), -5.5f);
    EXPECT_EQ(r.row->getMax(), 7.25f);
    EXPECT_EQ(r.row->GetValue(), 1234.5f);
    EXPECT_TRUE(r.row->GetLock());
    EXPECT_FALSE(r.txtValue().isEnabled());
    r.row->SetLock(false);
    EXPECT_TRUE(r.txtValue().isEnabled());
    r.row->SetValue(1.0f / 3.0f);
    EXPECT_EQ(r.txtValue().text().toStdString(), floatText(1.0f / 3.0f));
    EXPECT_TRUE(r.offsets.empty());
    EXPECT_TRUE(r.colors.empty());
    EXPECT_TRUE(r.methods.empty());

    r.row->setColor(0x123456);
    EXPECT_EQ(r.row->GetColor(), 0x123456);
    EXPECT_EQ(r.swatch().color(), 0x123456);
    r.row->SetMode(MethodExpPlus);
    EXPECT_EQ(r.row->GetMode(), MethodExpPlus);
    EXPECT_EQ(r.cmbMethod().currentText(), "Exp+");
    EXPECT_EQ(r.colors, std::vector<ColorValue>{0x123456});
    EXPECT_EQ(r.methods, std::vector<int>{MethodExpPlus});
    EXPECT_THROW(r.row->SetMode(6), VbError);
}

TEST(ColorTableRow, ChoosingInTheListOrTheSwatchReportsTheNewValue) {
    ShownRow r;
    r.cmbMethod().setFocus();
    QTest::keyClick(&r.cmbMethod(), Qt::Key_Down);
    EXPECT_EQ(r.row->GetMode(), MethodLog);
    EXPECT_EQ(r.methods, std::vector<int>{MethodLog});

    r.swatch().setColor(0x00FF00); // what the colour dialog's OK does
    EXPECT_EQ(r.row->GetColor(), 0x00FF00);
    EXPECT_EQ(r.colors, std::vector<ColorValue>{0x00FF00});
}

TEST(ColorTableRow, PickColorOpensTheSwatchDialog) {
    ColorTableRow row;
    row.setColor(0x0A0B0C);
    std::vector<ColorValue> colors;
    QObject::connect(&row, &ColorTableRow::colorChanged,
                     [&](ColorValue c) { colors.push_back(c); });
    QString shownRed;
    testing::whenModalOpens<frmColorRef>([&](frmColorRef& dialog) {
        testing::DialogControls ui(dialog);
        shownRed = ui.edit("txtR").text();
        ui.edit("txtR").setText("255");
        QTest::mouseClick(&ui.find<QPushButton>("OK"), Qt::LeftButton);
    });
    row.pickColor();
    EXPECT_EQ(shownRed, "12");
    EXPECT_EQ(row.GetColor(), composeColor(255, 0x0B, 0x0A));
    EXPECT_EQ(colors, std::vector<ColorValue>{composeColor(255, 0x0B, 0x0A)});
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
    EXPECT_EQ(r.row->GetValue(), 175.0f);

    r.type("200"); // the upper bound itself: one below it
    EXPECT_EQ(r.txtValue().text(), "199");
    r.type("100"); // the lower bound itself: one above it
    EXPECT_EQ(r.txtValue().text(), "101");
    r.type("5000");
    EXPECT_EQ(r.txtValue().text(), "199");
    EXPECT_EQ(r.offsets, (std::vector<float>{175.0f, 199.0f, 101.0f, 199.0f}));
    EXPECT_EQ(r.row->GetValue(), 199.0f);
}

TEST(ColorTableRow, NarrowBoundsTestTheUpperFirstAndLockedRowsAreNotValidated) {
    ShownRow r;
    r.row->setMin(0.0f);
    r.row->setMax(0.5f);
    r.type("0.7"); // 0.7 -> -0.5 -> 1: ends above the upper bound
    EXPECT_EQ(r.row->GetValue(), 1.0f);
    EXPECT_EQ(r.offsets, std::vector<float>{1.0f});

    r.row->SetLock(true);
    r.row->commitValue();
    EXPECT_EQ(r.offsets.size(), 1u);
}

TEST(ColorTableRow, EnterTakesTheValueWithoutLeavingTheBox) {
    ShownRow r;
    r.row->setMin(0.0f);
    r.row->setMax(10.0f);
    r.txtValue().setFocus();
    r.txtValue().selectAll();
    QTest::keyClicks(&r.txtValue(), "4");
    QTest::keyClick(&r.txtValue(), Qt::Key_Return);
    EXPECT_EQ(r.offsets, std::vector<float>{4.0f});
    EXPECT_TRUE(r.txtValue().hasFocus());
}

} // namespace
} // namespace huebase
