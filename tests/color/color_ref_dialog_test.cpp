#include "color/hsl.h"
#include "color/palette_field.h"

#include "dialog_test_support.h"
#include "fake_screen.h"
#include "support/service_recorder.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace huebase {
namespace {

using testing::DialogControls;

ColorValue rgb(int r, int g, int b) {
    return composeColor(r, g, b);
}

class ColorDialogTest : public ::testing::Test {
protected:
    ColorDialogTest()
        : dialog(nullptr, std::make_unique<testing::FakeScreen>(640, 480)), ui(dialog) {}

    void open(ColorValue color) {
        dialog.setColor(color);
        dialog.show();
    }

    // Replaces the box's text by typing, key by key, as a user does.
    void type(const char* box, const char* text) {
        QLineEdit& edit = ui.edit(box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    QString text(const char* box) const { return ui.edit(box).text(); }

    frmColorRef dialog;
    DialogControls ui;
};

TEST_F(ColorDialogTest, ControlsCarryTheirNamesTipsAndRanges) {
    EXPECT_EQ(dialog.objectName(), "frmColorRef");
    EXPECT_EQ(dialog.windowTitle(), "Color Pick");
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    const struct {
        const char* letter;
        int maximum;
        const char* tip;
    } boxes[] = {
        {"R", 255, "Red value for above color"},
        {"G", 255, "Green value for above color"},
        {"B", 255, "Blue value for above color"},
        {"H", 239, "Hue (Tint) value for above color"},
        {"S", 240, "SAturation (Richness) value for above color"},
        {"L", 240, "Luminence (Brightness) value for above color"},
    };
    for (const auto& box : boxes) {
        const std::string letter = box.letter;
        QLineEdit& edit = ui.edit(("txt" + letter).c_str());
        EXPECT_EQ(edit.toolTip(), box.tip);
        EXPECT_EQ(edit.font().family(), "Courier New");
        EXPECT_EQ(ui.find<QLabel>(("lbl" + letter).c_str()).text(), box.letter);
        EXPECT_EQ(ui.find<QLabel>(("lbl" + letter).c_str()).font().family(), "Courier New");
        QScrollBar& slider = ui.slider(("v" + letter).c_str());
        EXPECT_EQ(slider.orientation(), Qt::Vertical);
        EXPECT_EQ(slider.minimum(), 0);
        EXPECT_EQ(slider.maximum(), box.maximum);
    }

    EXPECT_EQ(ui.patch("picColor").toolTip(), "Current color");
    EXPECT_EQ(ui.patch("Picture1").toolTip(), "pick a color");
    EXPECT_EQ(ui.patch("Picture1").parentWidget()->objectName(), "pCol");
    EXPECT_EQ(ui.find<QPushButton>("cmdPick").toolTip(), "Pick  from Screen");
    EXPECT_EQ(ui.find<QPushButton>("cmd5by5").toolTip(),
              "Take a 5x5 average sample from the screen");
    EXPECT_EQ(ui.find<QPushButton>("cmdChange").toolTip(), "Windoze color picker");
    EXPECT_FALSE(ui.find<QPushButton>("cmdChange").icon().isNull());
    EXPECT_EQ(ui.find<QPushButton>("OK").text(), "OK");
    EXPECT_EQ(ui.find<QPushButton>("Cancel").text(), "Cancel");

    EXPECT_EQ(dialog.findChildren<ColorPatch*>("lblAdj").size(), 8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(ui.element("lblAdj", i).toolTip(), "Click to adjust brightness");
        EXPECT_EQ(ui.element("lblAdj", i).font().family(), "Arial");
    }
    EXPECT_EQ(dialog.findChildren<ColorPatch*>("picPoint").size(), 25);
    EXPECT_EQ(ui.element("picPoint", 24).parentWidget()->objectName(), "pic5x5");
    EXPECT_TRUE(ui.find<QWidget>("pic5x5").isHidden());
    EXPECT_FALSE(ui.timer("tmrPick").isActive());
    EXPECT_EQ(ui.timer("tmrPick").interval(), 0);
    EXPECT_EQ(ui.timer("tmr5by5").interval(), 0);
}

TEST_F(ColorDialogTest, ShowsTheColourInEveryBoxAndSlider) {
    open(rgb(255, 128, 0)); // orange: H 20, S 240, L 120
    EXPECT_EQ(text("txtR"), "255");
    EXPECT_EQ(text("txtG"), "128");
    EXPECT_EQ(text("txtB"), "0");
    EXPECT_EQ(text("txtH"), "20");
    EXPECT_EQ(text("txtS"), "240");
    EXPECT_EQ(text("txtL"), "120");
    EXPECT_EQ(ui.slider("vR").value(), 0);
    EXPECT_EQ(ui.slider("vG").value(), 127);
    EXPECT_EQ(ui.slider("vB").value(), 255);
    EXPECT_EQ(ui.slider("vH").value(), 219);
    EXPECT_EQ(ui.slider("vS").value(), 0);
    EXPECT_EQ(ui.slider("vL").value(), 120);
    // Each component box is backed by its pure component.
    EXPECT_EQ(ui.edit("txtR").palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(ui.edit("txtG").palette().color(QPalette::Base), QColor(0, 128, 0));
    EXPECT_EQ(ui.edit("txtB").palette().color(QPalette::Base), QColor(0, 0, 0));
    EXPECT_EQ(dialog.color(), rgb(255, 128, 0));
}

TEST_F(ColorDialogTest, ComponentBoxesClampRewriteAndSelect) {
    open(rgb(10, 20, 30));
    type("txtR", "300");
    EXPECT_EQ(text("txtR"), "255");
    EXPECT_EQ(ui.edit("txtR").selectedText(), "255");
    EXPECT_EQ(dialog.color(), rgb(255, 20, 30));
    EXPECT_EQ(ui.slider("vR").value(), 0);

    type("txtG", "abc");
    EXPECT_EQ(text("txtG"), "0");
    EXPECT_EQ(ui.edit("txtG").selectedText(), "0");
    EXPECT_EQ(dialog.color(), rgb(255, 0, 30));

    ui.edit("txtB").setText("007");
    EXPECT_EQ(text("txtB"), "7");
    EXPECT_EQ(dialog.color(), rgb(255, 0, 7));
    EXPECT_EQ(ui.slider("vB").value(), 248);

    // The HSL boxes follow a component edit.
    const HSLColor hsl = modHSL::RGBToHSL(dialog.color());
    EXPECT_EQ(text("txtH").toInt(), hsl.Hue);
    EXPECT_EQ(text("txtL").toInt(), hsl.Luminance);
}

TEST_F(ColorDialogTest, HslBoxesClampAtTheirMaximum) {
    open(rgb(10, 20, 30));
    type("txtH", "240");
    EXPECT_EQ(text("txtH"), "239");
    EXPECT_EQ(ui.edit("txtH").selectedText(), "239");
    EXPECT_EQ(ui.slider("vH").value(), 0);

    type("txtS", "241");
    EXPECT_EQ(text("txtS"), "240");
    EXPECT_EQ(ui.edit("txtS").selectedText(), "240");

    type("txtL", "240");
    EXPECT_EQ(text("txtL"), "240");
    EXPECT_EQ(dialog.color(), 0xFFFFFF);

    type("txtL", "x");
    EXPECT_EQ(text("txtL"), "0");
    EXPECT_EQ(ui.slider("vL").value(), 240);
}

TEST_F(ColorDialogTest, TypingAHueIsNotDisturbedByTheRoundTrip) {
    // (90, 55, 37) shows as (14, 100, 60); (13, 100, 60) converts back to the
    // same colour, so a reloaded hue box would jump from 13 to 14.
    open(rgb(90, 55, 37));
    EXPECT_EQ(text("txtH"), "14");
    EXPECT_EQ(text("txtS"), "100");
    EXPECT_EQ(text("txtL"), "60");

    type("txtH", "13");
    EXPECT_EQ(text("txtH"), "13");
    EXPECT_EQ(ui.slider("vH").value(), 239 - 13);
    EXPECT_EQ(dialog.color(), rgb(90, 55, 37));
    EXPECT_EQ(text("txtS"), "100");
    EXPECT_EQ(text("txtR"), "90");

    type("txtH", "0");
    EXPECT_EQ(text("txtH"), "0");
    EXPECT_NE(dialog.color(), rgb(90, 55, 37));
    EXPECT_EQ(text("txtR").toInt(), RedOf(dialog.color()));
    EXPECT_EQ(text("txtG").toInt(), GreenOf(dialog.color()));
    EXPECT_EQ(text("txtB").toInt(), BlueOf(dialog.color()));

    type("txtH", "13");
    dialog.hide();
    dialog.show();
    EXPECT_EQ(text("txtH"), "14");
}

TEST_F(ColorDialogTest, SlidersWriteTheirBoxesInverted) {
    open(0);
    ui.slider("vB").setValue(55);
    EXPECT_EQ(text("txtB"), "200");
    EXPECT_EQ(dialog.color(), rgb(0, 0, 200));

    ui.slider("vL").setValue(0);
    EXPECT_EQ(text("txtL"), "240");
    EXPECT_EQ(dialog.color(), 0xFFFFFF);

    ui.slider("vR").setValue(255);
    EXPECT_EQ(text("txtR"), "0");
}

TEST_F(ColorDialogTest, GreenBoxTextTurnsBlackAbove172) {
    open(rgb(0, 172, 0));
    EXPECT_EQ(ui.edit("txtG").palette().color(QPalette::Text), Qt::white);
    type("txtG", "173");
    EXPECT_EQ(ui.edit("txtG").palette().color(QPalette::Text), Qt::black);
    EXPECT_EQ(ui.edit("txtR").palette().color(QPalette::Text), Qt::white);
    type("txtG", "172");
    EXPECT_EQ(ui.edit("txtG").palette().color(QPalette::Text), Qt::white);
}

TEST_F(ColorDialogTest, StripShowsDarkerAndLighterSteps) {
    open(0);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(ui.element("lblAdj", i).color(), 0) << i;
        EXPECT_EQ(ui.element("lblAdj", i).palette().color(QPalette::WindowText), Qt::white);
    }
    // Luminance 12, 24, 36, 48 of 240.
    EXPECT_EQ(ui.element("lblAdj", 4).color(), rgb(13, 13, 13));
    EXPECT_EQ(ui.element("lblAdj", 5).color(), rgb(26, 26, 26));
    EXPECT_EQ(ui.element("lblAdj", 6).color(), rgb(38, 38, 38));
    EXPECT_EQ(ui.element("lblAdj", 7).color(), rgb(51, 51, 51));

    type("txtL", "240");
    for (int i = 4; i < 8; ++i) {
        EXPECT_EQ(ui.element("lblAdj", i).color(), 0xFFFFFF) << i;
        EXPECT_EQ(ui.element("lblAdj", i).palette().color(QPalette::WindowText), Qt::black);
    }
    EXPECT_EQ(ui.element("lblAdj", 3).color(), modHSL::DarkenColor(0xFFFFFF, 0.05f));
}

TEST_F(ColorDialogTest, ClickingStepsWalksTheColour) {
    open(rgb(128, 128, 128)); // L 121
    ColorPatch& lighter = ui.element("lblAdj", 4);
    QTest::mouseClick(&lighter, Qt::LeftButton);
    EXPECT_EQ(modHSL::RGBToHSL(dialog.color()).Luminance, 133);
    QTest::mouseClick(&lighter, Qt::LeftButton);
    EXPECT_EQ(modHSL::RGBToHSL(dialog.color()).Luminance, 145);
    QTest::mouseClick(&ui.element("lblAdj", 0), Qt::LeftButton);
    EXPECT_EQ(modHSL::RGBToHSL(dialog.color()).Luminance, 97);
    EXPECT_EQ(text("txtL"), "97");
}

TEST_F(ColorDialogTest, PaletteClickTakesThePaletteColour) {
    open(rgb(1, 2, 3));
    ColorPatch& palette = ui.patch("Picture1");
    const QSize size = palette.pixmap().size();
    QTest::mouseClick(&palette, Qt::LeftButton, {}, QPoint(30, 0));
    EXPECT_EQ(dialog.color(), 0xFFFFFF);
    QTest::mouseClick(&palette, Qt::LeftButton, {}, QPoint(0, size.height() / 2));
    EXPECT_EQ(text("txtH"), "0");
    EXPECT_EQ(text("txtS"), "240");
    EXPECT_EQ(text("txtL"), "120");
    const QPoint grey(size.width() - 1, size.height() / 2);
    QTest::mouseClick(&palette, Qt::LeftButton, {}, grey);
    EXPECT_EQ(text("txtS"), "0");
    EXPECT_EQ(dialog.color(), paletteColorAt(grey.x(), grey.y(), size.width(), size.height()));
}

TEST_F(ColorDialogTest, FocusSelectsTheWholeText) {
    open(rgb(123, 45, 6));
    QApplication::setActiveWindow(&dialog);
    ui.edit("txtB").setFocus();
    ui.edit("txtR").setFocus();
    QTest::qWait(20);
    EXPECT_EQ(ui.edit("txtR").selectedText(), "123");
}

TEST_F(ColorDialogTest, CancelClosesWithoutATarget) {
    open(rgb(9, 9, 9));
    QTest::mouseClick(&ui.find<QPushButton>("Cancel"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(ColorDialogTest, AboutGoesThroughTheMessageService) {
    testing::ServiceRecorder recorder;
    open(0);
    QTest::mouseClick(&ui.find<QToolButton>("cmdAbout"), Qt::LeftButton);
    ASSERT_EQ(recorder.messages().size(), 1u);
    EXPECT_EQ(recorder.messages()[0].title, "About");
    EXPECT_EQ(recorder.messages()[0].icon, MessageIcon::Information);
    EXPECT_FALSE(recorder.messages()[0].text.empty());
}

} // namespace
} // namespace huebase
