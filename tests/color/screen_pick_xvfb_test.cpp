#include "color/qt_color.h"

#include "dialog_test_support.h"

#include <QCursor>
#include <QPushButton>
#include <QTest>

namespace huebase {
namespace {

// Picks from a real X screen through the QScreen adapter: a window of a
// known colour is shown beside the dialog and the pointer is put on it.
TEST(RealScreenPick, PickAndFiveByFiveReadTheWindowUnderThePointer) {
    const ColorValue known = composeColor(204, 102, 51);
    QWidget target;
    target.setAutoFillBackground(true);
    QPalette pal = target.palette();
    pal.setColor(QPalette::Window, toQColor(known));
    target.setPalette(pal);
    target.setGeometry(760, 520, 220, 160);
    target.show();
    frmColorRef dialog;
    dialog.move(40, 40);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&target) && QTest::qWaitForWindowExposed(&dialog));
    testing::DialogControls ui(dialog);
    const auto takeWith = [&](const char* button, QPoint at) {
        dialog.setColor(0);
        QCursor::setPos(target.mapToGlobal(at));
        QTest::qWait(50);
        QTest::mouseClick(&ui.find<QPushButton>(button), Qt::LeftButton);
        return QTest::qWaitFor([&] { return dialog.color() == known; }, 5000);
    };

    EXPECT_TRUE(takeWith("cmdPick", {100, 80})) << std::hex << dialog.color();
    QTest::mousePress(&ui.patch("picColor"), Qt::LeftButton);
    EXPECT_FALSE(ui.timer("tmrPick").isActive());

    EXPECT_TRUE(takeWith("cmd5by5", {60, 60})) << std::hex << dialog.color();
    EXPECT_EQ(ui.element("picPoint", 0).color(), known);
    QTest::mousePress(&ui.patch("picColor"), Qt::LeftButton);
    EXPECT_TRUE(ui.find<QWidget>("pic5x5").isHidden());
}

} // namespace
} // namespace huebase
