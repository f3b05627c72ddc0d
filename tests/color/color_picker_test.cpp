#include "color/color_chooser.h"
#include "color/color_picker.h"

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

// Opens the swatch's dialog by a click or from code, notes the dialog, the
// red and blue it shows and the box that has the focus, sets one box (leaving
// the focus there) and closes it with the button.
struct Opening {
    QPointer<frmColorRef> dialog;
    QString shown;
    std::string focused;
};
Opening open(ColorPicker& picker, bool byMouse, const char* box, const char* button) {
    Opening seen;
    whenModalOpens<frmColorRef>([&](frmColorRef& dialog) {
        DialogControls ui(dialog);
        seen = {&dialog, ui.edit("txtR").text() + "," + ui.edit("txtB").text(),
                dialog.focusWidget() ? dialog.focusWidget()->objectName().toStdString() : ""};
        ui.edit(box).setFocus();
        ui.edit(box).setText("200");
        QTest::mouseClick(&ui.find<QPushButton>(button), Qt::LeftButton);
    });
    if (byMouse)
        QTest::mouseClick(&picker, Qt::LeftButton);
    else
        picker.UserControl_Click();
    return seen;
}

TEST(Swatch, RaisesChangedOnEverySetAndOnOkOnly) {
    auto picker = std::make_unique<ColorPicker>(nullptr, rgb(10, 20, 30));
    std::vector<ColorValue> changes;
    QObject::connect(picker.get(), &ColorPicker::Changed,
                     [&](ColorValue color) { changes.push_back(color); });
    picker->setColor(rgb(10, 20, 30));
    picker->setProperty("color", rgb(10, 20, 30));
    EXPECT_EQ(changes, (std::vector<ColorValue>{rgb(10, 20, 30), rgb(10, 20, 30)}));

    changes.clear();
    const Opening cancelled = open(*picker, true, "txtG", "Cancel");
    EXPECT_EQ(cancelled.shown, "10,30"); // opened on the swatch's colour
    EXPECT_EQ(cancelled.focused, "txtR");
    EXPECT_EQ(picker->color(), rgb(10, 20, 30));
    EXPECT_TRUE(changes.empty());

    picker->setColor(rgb(10, 20, 250));
    changes.clear();
    const Opening accepted = open(*picker, false, "txtR", "OK");
    EXPECT_EQ(accepted.dialog, cancelled.dialog); // one dialog, reloaded on each opening
    EXPECT_EQ(accepted.shown, "10,250");
    EXPECT_EQ(accepted.focused, "txtR")
        << "the first box again, not where the last opening left it";
    EXPECT_EQ(picker->color(), rgb(200, 20, 250));
    EXPECT_EQ(changes, std::vector<ColorValue>{rgb(200, 20, 250)});

    picker.reset();
    EXPECT_TRUE(cancelled.dialog.isNull()); // it lives as long as the swatch
}

TEST(SystemChooser, CentresByHalvingTheDifferenceRoundingTiesToEven) {
    // 300 x 200 area at (100, 50); window 101 x 51: 199.5 -> 200, 124.5 -> 124.
    EXPECT_EQ(centredOrigin({100, 50, 400, 250}, 101, 51), (ScreenPoint{200, 124}));
    EXPECT_EQ(centredOrigin({10, 10, 110, 60}, 200, 100), (ScreenPoint{-40, -15}));
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
    struct Use {
        QColor started;
        std::vector<QRgb> customs; // Qt keeps no alpha in custom colours
        QPoint centre;
    };
    const auto use = [&](std::function<void(QColorDialog&)> act) {
        Use seen;
        whenModalOpens<QColorDialog>([&](QColorDialog& chooser) {
            seen.started = chooser.currentColor();
            for (int i = 0; i < QColorDialog::customCount(); ++i)
                seen.customs.push_back(QColorDialog::customColor(i).rgb() & 0xFFFFFFu);
            seen.centre = chooser.frameGeometry().center();
            act(chooser);
        });
        QTest::mouseClick(&ui.find<QPushButton>("cmdChange"), Qt::LeftButton);
        return seen;
    };

    const Use first = use([](QColorDialog& chooser) {
        chooser.setCurrentColor(QColor(12, 34, 56));
        chooser.accept();
    });
    EXPECT_EQ(first.started, QColor(0, 0, 0));
    EXPECT_EQ(first.customs, std::vector<QRgb>(16, 0xFEFEFEu));
    EXPECT_LE((first.centre - dialog.frameGeometry().center()).manhattanLength(), 2);
    EXPECT_EQ(dialog.color(), rgb(12, 34, 56));
    EXPECT_EQ(ui.edit("txtB").text(), "56");

    // The next use starts from that choice, not from the current colour; the
    // user defines a custom colour and cancels, which keeps the colour.
    ui.edit("txtR").setText("99");
    const Use second = use([](QColorDialog& chooser) {
        QColorDialog::setCustomColor(3, QColor(1, 2, 3));
        chooser.reject();
    });
    EXPECT_EQ(second.started, QColor(12, 34, 56));
    EXPECT_EQ(dialog.color(), rgb(99, 34, 56));
    EXPECT_EQ(dialog.LastChoice(), (ColorChoice{0, true}));

    // After a cancel the chooser starts at black; custom colours are kept.
    const Use third = use([](QColorDialog& chooser) { chooser.reject(); });
    EXPECT_EQ(third.started, QColor(0, 0, 0));
    ASSERT_EQ(third.customs.size(), 16u);
    EXPECT_EQ(third.customs[3], 0x010203u);
}

} // namespace
} // namespace huebase
