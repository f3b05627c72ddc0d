#include "color/color_chooser.h"
#include "color/color_picker.h"
#include "color/qt_color.h"

#include "dialog_test_support.h"

#include <QColorDialog>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <vector>

namespace huebase {
namespace {

using testing::DialogControls;
using testing::whenModalOpens;

ColorValue rgb(int r, int g, int b) {
    return composeColor(r, g, b);
}

struct ChangeLog {
    explicit ChangeLog(ColorPicker& picker) {
        QObject::connect(&picker, &ColorPicker::Changed,
                         [this](ColorValue color) { colors.push_back(color); });
    }
    std::vector<ColorValue> colors;
};

TEST(ColorPicker, SettingTheColourAlwaysRaisesChanged) {
    ColorPicker picker(nullptr, rgb(1, 2, 3));
    ChangeLog log(picker);
    EXPECT_EQ(picker.color(), rgb(1, 2, 3));
    picker.setColor(rgb(4, 5, 6));
    picker.setColor(rgb(4, 5, 6));
    picker.setProperty("color", rgb(7, 8, 9));
    EXPECT_EQ(log.colors, (std::vector<ColorValue>{rgb(4, 5, 6), rgb(4, 5, 6), rgb(7, 8, 9)}));
    EXPECT_EQ(picker.color(), rgb(7, 8, 9));
}

TEST(ColorPicker, OkWritesTheDialogColourBack) {
    ColorPicker picker(nullptr, rgb(10, 20, 30));
    ChangeLog log(picker);
    QString shownRed;
    whenModalOpens<frmColorRef>([&](frmColorRef& dialog) {
        DialogControls ui(dialog);
        shownRed = ui.edit("txtR").text();
        ui.edit("txtR").setText("200");
        QTest::mouseClick(&ui.find<QPushButton>("OK"), Qt::LeftButton);
    });
    picker.UserControl_Click();
    EXPECT_EQ(shownRed, "10"); // opened on the swatch's colour
    EXPECT_EQ(picker.color(), rgb(200, 20, 30));
    EXPECT_EQ(log.colors, std::vector<ColorValue>{rgb(200, 20, 30)});
}

TEST(ColorPicker, CancelLeavesTheColourAndRaisesNothing) {
    ColorPicker picker(nullptr, rgb(10, 20, 30));
    ChangeLog log(picker);
    whenModalOpens<frmColorRef>([](frmColorRef& dialog) {
        DialogControls ui(dialog);
        ui.edit("txtG").setText("99");
        QTest::mouseClick(&ui.find<QPushButton>("Cancel"), Qt::LeftButton);
    });
    picker.UserControl_Click();
    EXPECT_EQ(picker.color(), rgb(10, 20, 30));
    EXPECT_TRUE(log.colors.empty());
}

TEST(ColorPicker, KeepsOneDialogForItsLife) {
    auto picker = std::make_unique<ColorPicker>(nullptr, rgb(1, 1, 1));
    QPointer<frmColorRef> first;
    whenModalOpens<frmColorRef>([&](frmColorRef& dialog) {
        first = &dialog;
        dialog.reject();
    });
    QTest::mouseClick(picker.get(), Qt::LeftButton); // a real click opens it too
    ASSERT_FALSE(first.isNull());

    picker->setColor(rgb(0, 0, 250));
    QPointer<frmColorRef> second;
    QString shownBlue;
    whenModalOpens<frmColorRef>([&](frmColorRef& dialog) {
        second = &dialog;
        shownBlue = DialogControls(dialog).edit("txtB").text();
        dialog.reject();
    });
    picker->UserControl_Click();
    EXPECT_EQ(second, first);
    EXPECT_EQ(shownBlue, "250");

    picker.reset();
    EXPECT_TRUE(first.isNull());
}

// The custom colours are process-wide, so the whole story of the system
// chooser is told in one test, in order; it must be the process's first use
// of the chooser (ctest runs every test in a process of its own).
TEST(SystemChooser, StartsFromTheLastChoiceAndKeepsCustomColours) {
    frmColorRef dialog;
    dialog.setColor(rgb(5, 6, 7));
    dialog.move(200, 150);
    dialog.show();
    DialogControls ui(dialog);
    auto& change = ui.find<QPushButton>("cmdChange");

    // First use: black, custom colours near-white, centred on the dialog.
    QColor started;
    std::vector<QRgb> customs;
    QPoint chooserCentre;
    whenModalOpens<QColorDialog>([&](QColorDialog& chooser) {
        started = chooser.currentColor();
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            customs.push_back(QColorDialog::customColor(i).rgba());
        chooserCentre = chooser.frameGeometry().center();
        chooser.setCurrentColor(QColor(12, 34, 56));
        chooser.accept();
    });
    QTest::mouseClick(&change, Qt::LeftButton);
    EXPECT_EQ(started, QColor(0, 0, 0));
    ASSERT_EQ(customs.size(), 16u);
    for (const QRgb c : customs)
        EXPECT_EQ(c & 0xFFFFFFu, 0xFEFEFEu); // Qt keeps no alpha in custom colours
    EXPECT_LE((chooserCentre - dialog.frameGeometry().center()).manhattanLength(), 2);
    EXPECT_EQ(dialog.color(), rgb(12, 34, 56));
    EXPECT_EQ(ui.edit("txtB").text(), "56");
    EXPECT_EQ(dialog.LastChoice(), (ColorChoice{rgb(12, 34, 56), false}));

    // Second use starts from that choice, not from the current colour; the
    // user defines a custom colour and cancels.
    ui.edit("txtR").setText("99");
    whenModalOpens<QColorDialog>([&](QColorDialog& chooser) {
        started = chooser.currentColor();
        QColorDialog::setCustomColor(3, QColor(1, 2, 3));
        chooser.reject();
    });
    QTest::mouseClick(&change, Qt::LeftButton);
    EXPECT_EQ(started, QColor(12, 34, 56));
    EXPECT_EQ(dialog.color(), rgb(99, 34, 56));
    EXPECT_EQ(dialog.LastChoice(), (ColorChoice{0, true}));

    // After a cancel the chooser starts at black; custom colours are kept.
    QRgb kept = 0;
    whenModalOpens<QColorDialog>([&](QColorDialog& chooser) {
        started = chooser.currentColor();
        kept = QColorDialog::customColor(3).rgba();
        chooser.reject();
    });
    const ColorChoice direct = modColorDialog::ShowColorChooser(&dialog, true, 0);
    EXPECT_EQ(started, QColor(0, 0, 0));
    EXPECT_EQ(kept, QColor(1, 2, 3).rgba());
    EXPECT_TRUE(direct.Cancelled);
    EXPECT_EQ(direct.Color, 0);
}

} // namespace
} // namespace huebase
