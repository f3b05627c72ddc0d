#include "color/qt_color.h"

#include "dialog_test_support.h"

#include <QCursor>
#include <QPushButton>
#include <QTest>

namespace huebase {
namespace {

using testing::DialogControls;

// Picks from a real X screen through the QScreen adapter: a window of a
// known colour is shown beside the dialog and the pointer is put on it.
class RealScreenPick : public ::testing::Test {
protected:
    RealScreenPick() : ui(dialog) {
        target.setAutoFillBackground(true);
        QPalette pal = target.palette();
        pal.setColor(QPalette::Window, toQColor(known));
        target.setPalette(pal);
        target.setGeometry(760, 520, 220, 160);
        target.show();
        dialog.setColor(0);
        dialog.move(40, 40);
        dialog.show();
    }

    bool windowsExposed() {
        return QTest::qWaitForWindowExposed(&target) && QTest::qWaitForWindowExposed(&dialog);
    }

    void pointAt(QPoint local) {
        QCursor::setPos(target.mapToGlobal(local));
        QTest::qWait(50);
    }

    bool waitForColor(ColorValue expected) {
        return QTest::qWaitFor([&] { return dialog.color() == expected; }, 5000);
    }

    const ColorValue known = composeColor(204, 102, 51);
    QWidget target;
    frmColorRef dialog;
    DialogControls ui;
};

TEST_F(RealScreenPick, PickTakesThePixelUnderThePointer) {
    ASSERT_TRUE(windowsExposed());
    pointAt({100, 80});
    QTest::mouseClick(&ui.find<QPushButton>("cmdPick"), Qt::LeftButton);
    EXPECT_TRUE(waitForColor(known)) << std::hex << dialog.color();
    EXPECT_EQ(ui.edit("txtR").text(), "204");
    QTest::mousePress(&ui.patch("picColor"), Qt::LeftButton);
    EXPECT_FALSE(ui.timer("tmrPick").isActive());
}

TEST_F(RealScreenPick, FiveByFiveOverAPlainWindowAveragesToItsColour) {
    ASSERT_TRUE(windowsExposed());
    pointAt({60, 60});
    QTest::mouseClick(&ui.find<QPushButton>("cmd5by5"), Qt::LeftButton);
    EXPECT_TRUE(waitForColor(known)) << std::hex << dialog.color();
    for (int k = 0; k < kBlockCells; ++k)
        EXPECT_EQ(ui.element("picPoint", k).color(), known) << k;
    QTest::mousePress(&ui.patch("picColor"), Qt::LeftButton);
    EXPECT_TRUE(ui.find<QWidget>("pic5x5").isHidden());
}

} // namespace
} // namespace huebase
