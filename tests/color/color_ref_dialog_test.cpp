#include "color/hsl.h"
#include "color/palette_field.h"

#include "dialog_test_support.h"
#include "fake_screen.h"
#include "support/accessible_names.h"
#include "support/service_recorder.h"

#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace huebase {
namespace {

ColorValue rgb(int r, int g, int b) {
    return composeColor(r, g, b);
}

class ColorDialogTest : public ::testing::Test {
protected:
    ColorDialogTest()
        : screen(new testing::FakeScreen(320, 200)),
          dialog(nullptr, std::unique_ptr<testing::FakeScreen>(screen)), ui(dialog) {}

    void open(ColorValue color) { // the displays refresh when the dialog is shown
        dialog.hide();
        dialog.setColor(color);
        dialog.show();
    }
    // The box or slider of a letter of "RGBHSL".
    QLineEdit& box(char letter) const { return ui.edit(("txt" + std::string(1, letter)).c_str()); }
    QScrollBar& bar(char letter) const { return ui.slider(("v" + std::string(1, letter)).c_str()); }
    QString texts(const char* letters) const {
        QStringList shown;
        for (const char* l = letters; *l != 0; ++l)
            shown << box(*l).text();
        return shown.join(',');
    }
    // Replaces the box's text by typing, key by key, as a user does.
    void type(char letter, const char* text) {
        box(letter).setFocus();
        box(letter).selectAll();
        QTest::keyClicks(&box(letter), text);
    }
    static QColor colorOf(QWidget& w, QPalette::ColorRole role = QPalette::Text) {
        return w.palette().color(role);
    }
    void click(QWidget& w, QPoint at = {}) { QTest::mouseClick(&w, Qt::LeftButton, {}, at); }
    void click(const char* button) { click(ui.find<QPushButton>(button)); }
    std::vector<ColorValue> strip() const {
        std::vector<ColorValue> colors;
        for (int i = 0; i < 8; ++i)
            colors.push_back(ui.element("lblAdj", i).color());
        return colors;
    }

    testing::FakeScreen* screen; // owned by the dialog
    frmColorRef dialog;
    testing::DialogControls ui;
};

TEST_F(ColorDialogTest, ShowsTheColourInEveryBoxSliderAndBackground) {
    EXPECT_EQ(dialog.windowTitle(), "Color Pick");
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(box('S').toolTip(), "SAturation (Richness) value for above color");
    EXPECT_EQ(box('L').toolTip(), "Luminence (Brightness) value for above color");
    EXPECT_EQ(ui.find<QPushButton>("cmdPick").toolTip(), "Pick  from Screen");
    EXPECT_EQ(ui.find<QPushButton>("cmdChange").toolTip(), "Windoze color picker");

    open(rgb(255, 128, 0)); // orange: H 20, S 240, L 120
    EXPECT_EQ(texts("RGBHSL"), "255,128,0,20,240,120");
    const int maxima[] = {255, 255, 255, 239, 240, 240}, sliders[] = {0, 127, 255, 219, 0, 120};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(bar("RGBHSL"[i]).maximum(), maxima[i]) << "RGBHSL"[i];
        EXPECT_EQ(bar("RGBHSL"[i]).value(), sliders[i]) << "RGBHSL"[i];
    }
    // Each component box is backed by its pure component.
    EXPECT_EQ(colorOf(box('R'), QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(colorOf(box('G'), QPalette::Base), QColor(0, 128, 0));
    EXPECT_EQ(colorOf(box('B'), QPalette::Base), QColor(0, 0, 0));
    // Only the green box turns its text black, above 172.
    type('G', "173");
    EXPECT_EQ(colorOf(box('G')), Qt::black);
    EXPECT_EQ(colorOf(box('R')), Qt::white);
    type('G', "172");
    EXPECT_EQ(colorOf(box('G')), Qt::white);

    bar('B').setValue(55);
    EXPECT_EQ(box('B').text(), "200");
    bar('L').setValue(0);
    EXPECT_EQ(box('L').text(), "240");
    EXPECT_EQ(dialog.color(), 0xFFFFFF);
}

TEST_F(ColorDialogTest, EveryControlHasANameOfItsOwn) {
    open(rgb(255, 128, 0));
    EXPECT_EQ(testing::accessibleNameFaults(dialog), std::vector<std::string>{});
}

// Typed text reaches the model, and the boxes, sliders and selection show its answer.
TEST_F(ColorDialogTest, TypedValuesAreClampedSelectedAndFollowed) {
    const struct {
        char box;
        const char* typed;
        const char* shown;
        int slider;
        ColorValue color;
    } rows[] = {{'R', "300", "255", 0, rgb(255, 20, 30)}, {'L', "240", "240", 0, 0xFFFFFF}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(1, row.box) + " " + row.typed);
        open(rgb(10, 20, 30));
        type(row.box, row.typed);
        EXPECT_EQ(box(row.box).text(), row.shown);
        EXPECT_EQ(box(row.box).selectedText(), row.shown); // the next key replaces it
        EXPECT_EQ(bar(row.box).value(), row.slider);
        EXPECT_EQ(dialog.color(), row.color);
    }
    // A pasted "007" is written back plainly, not selected; the hue box follows.
    box('B').setText("007");
    EXPECT_EQ(box('B').text(), "7");
    EXPECT_EQ(box('B').selectedText(), "");
    EXPECT_EQ(box('H').text().toInt(), modHSL::RGBToHSL(dialog.color()).Hue);

    // (90, 55, 37) shows as (14, 100, 60); (13, 100, 60) converts back to the
    // same colour, and the box being typed in keeps the 13.
    open(rgb(90, 55, 37));
    type('H', "13");
    EXPECT_EQ(texts("HSL"), "13,100,60");
    EXPECT_EQ(bar('H').value(), 239 - 13);
    EXPECT_EQ(dialog.color(), rgb(90, 55, 37));
}

TEST_F(ColorDialogTest, StripPaletteAndFocusSetTheColour) {
    open(0); // darker half black; lighter half luminance 12, 24, 36, 48 of 240
    EXPECT_EQ(strip(), (std::vector<ColorValue>{0, 0, 0, 0, rgb(13, 13, 13), rgb(26, 26, 26),
                                                rgb(38, 38, 38), rgb(51, 51, 51)}));
    EXPECT_EQ(colorOf(ui.element("lblAdj", 0), QPalette::WindowText), Qt::white);
    type('L', "240");
    EXPECT_EQ(colorOf(ui.element("lblAdj", 7), QPalette::WindowText), Qt::black);
    open(rgb(128, 128, 128)); // L 121
    click(ui.element("lblAdj", 4));
    EXPECT_EQ(box('L').text(), "133");

    ColorPatch& palette = ui.patch("Picture1");
    const QSize size = palette.pixmap().size();
    const QPoint grey(size.width() - 1, size.height() / 2);
    click(palette, grey);
    EXPECT_EQ(box('S').text(), "0");
    EXPECT_EQ(dialog.color(), paletteColorAt(grey.x(), grey.y(), size.width(), size.height()));

    QApplication::setActiveWindow(&dialog);
    box('B').setFocus();
    box('R').setFocus();
    QTest::qWait(20);
    EXPECT_EQ(box('R').selectedText(), box('R').text());
}

TEST_F(ColorDialogTest, AboutIsAnInformationMessage) {
    testing::ServiceRecorder recorder;
    open(0);
    click(ui.find<QToolButton>("cmdAbout"));
    ASSERT_EQ(recorder.messages().size(), 1u);
    EXPECT_EQ(recorder.messages()[0].title, "About");
    EXPECT_EQ(recorder.messages()[0].icon, MessageIcon::Information);
}

TEST_F(ColorDialogTest, PickAndFiveByFiveRunUntilAPressOnTheSwatch) {
    open(rgb(1, 2, 3));
    screen->paint([](ScreenPoint p) { return rgb(10 * p.x, 10 * p.y, 100); });
    const auto waitFor = [&](ColorValue expected) {
        return QTest::qWaitFor([&] { return dialog.color() == expected; }, 3000);
    };
    const auto pressSwatch = [&] { QTest::mousePress(&ui.patch("picColor"), Qt::LeftButton); };
    click("cmdPick");
    EXPECT_EQ(ui.timer("tmrPick").interval(), 50);
    screen->movePointer(4, 3);
    ASSERT_TRUE(waitFor(rgb(40, 30, 100)));
    EXPECT_EQ(box('R').text(), "40");
    pressSwatch();
    EXPECT_FALSE(ui.timer("tmrPick").isActive());
    EXPECT_EQ(ui.timer("tmrPick").interval(), 0);
    EXPECT_EQ(dialog.color(), rgb(40, 30, 100)); // the last pick stays

    const auto stripBefore = strip();
    click("cmd5by5");
    EXPECT_EQ(ui.timer("tmr5by5").interval(), 100);
    EXPECT_FALSE(ui.find<QWidget>("pic5x5").isHidden());
    screen->movePointer(10, 12); // rows 10..14, columns 8..12
    ASSERT_TRUE(waitFor(rgb(100, 120, 100)));
    EXPECT_EQ(ui.element("picPoint", 4).color(), rgb(120, 100, 100)); // top right
    EXPECT_EQ(ui.element("picPoint", 20).color(), rgb(80, 140, 100)); // bottom left
    EXPECT_EQ(strip(), stripBefore); // kept while the enlargement is shown
    pressSwatch();
    EXPECT_TRUE(ui.find<QWidget>("pic5x5").isHidden());
    EXPECT_EQ(ui.timer("tmr5by5").interval(), 0);
    EXPECT_NE(strip(), stripBefore);
    EXPECT_EQ(dialog.color(), rgb(100, 120, 100));

    click("cmdPick");
    click("cmd5by5"); // possible from the keyboard; closing ends both modes
    EXPECT_TRUE(ui.timer("tmrPick").isActive() && ui.timer("tmr5by5").isActive());
    dialog.reject();
    EXPECT_FALSE(ui.timer("tmrPick").isActive() || ui.timer("tmr5by5").isActive());
    EXPECT_TRUE(ui.find<QWidget>("pic5x5").isHidden());
}

} // namespace
} // namespace huebase
