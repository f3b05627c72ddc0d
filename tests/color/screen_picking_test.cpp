#include "dialog_test_support.h"
#include "fake_screen.h"

#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace huebase {
namespace {

using testing::DialogControls;
using testing::FakeScreen;

class ScreenPickingTest : public ::testing::Test {
protected:
    ScreenPickingTest() {
        auto fake = std::make_unique<FakeScreen>(320, 200);
        screen = fake.get();
        dialog = std::make_unique<frmColorRef>(nullptr, std::move(fake));
        ui = std::make_unique<DialogControls>(*dialog);
        dialog->setColor(composeColor(1, 2, 3));
        dialog->show();
    }

    void click(const char* button) {
        QTest::mouseClick(&ui->find<QPushButton>(button), Qt::LeftButton);
    }

    // Waits for the next ticks of a mode; a few intervals in case the machine is busy.
    void letTimersRun() { QTest::qWait(260); }

    bool waitForColor(ColorValue expected) {
        return QTest::qWaitFor([&] { return dialog->color() == expected; }, 3000);
    }

    void endWithPressOnSwatch() { QTest::mousePress(&ui->patch("picColor"), Qt::LeftButton); }

    std::vector<ColorValue> stripColors() const {
        std::vector<ColorValue> colors;
        for (int i = 0; i < 8; ++i)
            colors.push_back(ui->element("lblAdj", i).color());
        return colors;
    }

    FakeScreen* screen = nullptr;
    std::unique_ptr<frmColorRef> dialog;
    std::unique_ptr<DialogControls> ui;
};

TEST_F(ScreenPickingTest, PickFollowsThePointerUntilAPress) {
    screen->paint([](ScreenPoint p) { return composeColor(p.x, p.y, 200); });
    click("cmdPick");
    EXPECT_TRUE(ui->timer("tmrPick").isActive());
    EXPECT_EQ(ui->timer("tmrPick").interval(), 50);

    // The pointer rests on (0, 0), the starting position: no sample yet.
    letTimersRun();
    EXPECT_EQ(dialog->color(), composeColor(1, 2, 3));

    screen->movePointer(40, 30);
    ASSERT_TRUE(waitForColor(composeColor(40, 30, 200)));
    EXPECT_EQ(ui->edit("txtR").text(), "40");

    // New content under a resting pointer is not taken.
    screen->paint([](ScreenPoint) { return 0x00FF00; });
    letTimersRun();
    EXPECT_EQ(dialog->color(), composeColor(40, 30, 200));
    screen->movePointer(41, 30);
    ASSERT_TRUE(waitForColor(0x00FF00));

    endWithPressOnSwatch();
    EXPECT_FALSE(ui->timer("tmrPick").isActive());
    EXPECT_EQ(ui->timer("tmrPick").interval(), 0);
    screen->movePointer(50, 50);
    screen->paint([](ScreenPoint) { return 0x0000FF; });
    letTimersRun();
    EXPECT_EQ(dialog->color(), 0x00FF00); // the last pick stays
}

TEST_F(ScreenPickingTest, FiveByFiveShowsTheBlockAndTakesItsAverage) {
    screen->paint([](ScreenPoint p) { return composeColor(10 * p.x, 10 * p.y, 100); });
    const auto stripBefore = stripColors();
    click("cmd5by5");
    EXPECT_EQ(ui->timer("tmr5by5").interval(), 100);
    EXPECT_TRUE(ui->timer("tmr5by5").isActive());
    EXPECT_FALSE(ui->find<QWidget>("pic5x5").isHidden());

    screen->movePointer(10, 12);
    // Rows 10..14, columns 8..12: mean red 100, mean green 120.
    ASSERT_TRUE(waitForColor(composeColor(100, 120, 100)));
    EXPECT_EQ(ui->element("picPoint", 0).color(), composeColor(80, 100, 100));
    EXPECT_EQ(ui->element("picPoint", 12).color(), composeColor(100, 120, 100));
    EXPECT_EQ(ui->element("picPoint", 24).color(), composeColor(120, 140, 100));
    // The strip keeps its colours while the enlargement is shown.
    EXPECT_EQ(stripColors(), stripBefore);

    endWithPressOnSwatch();
    EXPECT_TRUE(ui->find<QWidget>("pic5x5").isHidden());
    EXPECT_EQ(ui->timer("tmr5by5").interval(), 0);
    EXPECT_NE(stripColors(), stripBefore);
    EXPECT_EQ(dialog->color(), composeColor(100, 120, 100));
}

TEST_F(ScreenPickingTest, FiveByFiveInTheTopLeftCornerCountsBlackCells) {
    screen->paint([](ScreenPoint) { return composeColor(250, 125, 50); });
    click("cmd5by5");
    screen->movePointer(3, 3);
    ASSERT_TRUE(waitForColor(composeColor(250, 125, 50)));
    screen->movePointer(0, 0);
    // 9 of 25 cells read: 250 * 9 / 25 = 90, 125 * 9 / 25 = 45, 50 * 9 / 25 = 18.
    ASSERT_TRUE(waitForColor(composeColor(90, 45, 18)));
    int black = 0;
    for (int k = 0; k < 25; ++k)
        black += ui->element("picPoint", k).color() == 0 ? 1 : 0;
    EXPECT_EQ(black, 16);
    EXPECT_EQ(ui->element("picPoint", 12).color(), composeColor(250, 125, 50));
    endWithPressOnSwatch();
}

TEST_F(ScreenPickingTest, ClosingTheDialogEndsAMode) {
    click("cmdPick");
    click("cmd5by5"); // from the keyboard this is possible: both modes run
    EXPECT_TRUE(ui->timer("tmrPick").isActive());
    EXPECT_TRUE(ui->timer("tmr5by5").isActive());
    dialog->reject();
    EXPECT_FALSE(ui->timer("tmrPick").isActive());
    EXPECT_FALSE(ui->timer("tmr5by5").isActive());
    EXPECT_TRUE(ui->find<QWidget>("pic5x5").isHidden());
}

TEST_F(ScreenPickingTest, PressOnTheSwatchOutsideAModeChangesNothing) {
    endWithPressOnSwatch();
    EXPECT_EQ(dialog->color(), composeColor(1, 2, 3));
    EXPECT_FALSE(ui->timer("tmrPick").isActive());
}

} // namespace
} // namespace huebase
