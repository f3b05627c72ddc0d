#include "browser/color_bar_row.h"
#include "browser/lut_fitting.h"
#include "util/vb_format.h"

#include "browser/widget_test_support.h"
#include "support/service_recorder.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace huebase {
namespace {

using testing::saveLut;
using testing::ScratchFolder;
using testing::ServiceRecorder;
using testing::tableAt;

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kRed = 0x0000FF;
constexpr ColorValue kGreen = 0x00FF00;

QColor qColorOf(ColorValue color) {
    return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

class RowWidgetTest : public ::testing::Test {
protected:
    QLineEdit& text(const char* name) { return *row.findChild<QLineEdit*>(name); }
    QWidget& bar() { return *row.findChild<QWidget*>("ColorBar"); }
    QPushButton& selectButton() { return *row.findChild<QPushButton*>("SelectBtn"); }

    // Lays the row out with a bar of a known width.
    QImage barImage(int rowWidth = 600) {
        row.resize(rowWidth, row.sizeHint().height());
        row.show();
        QCoreApplication::processEvents();
        return bar().grab().toImage();
    }

    ScratchFolder folder;
    ServiceRecorder services;
    ColorBarRow row;
};

// --- Controls and texts -----------------------------------------------------------

TEST_F(RowWidgetTest, AFreshRowHasItsNamedControlsAndTheLiteralBoundWords) {
    ASSERT_NE(row.findChild<QPushButton*>("SelectBtn"), nullptr);
    ASSERT_NE(row.findChild<QWidget*>("ColorBar"), nullptr);
    for (const char* name : {"MinVal", "MaxVal", "Pathtxt", "Text1"})
        ASSERT_NE(row.findChild<QLineEdit*>(name), nullptr) << name;
    ASSERT_NE(row.findChild<QFrame*>("Line1"), nullptr);
    EXPECT_EQ(text("MinVal").text(), "MinVal");
    EXPECT_EQ(text("MaxVal").text(), "MaxVal");
    EXPECT_EQ(text("Pathtxt").text(), "");
    EXPECT_FALSE(selectButton().isEnabled()) << "nothing to hand over yet";
}

TEST_F(RowWidgetTest, AFilePathShowsThePathTheBoundsAndTheTablesName) {
    const std::string path = saveLut(folder, "sea level.lut", tableAt({-12.5f, 0, 250}));
    row.setFilePath(QString::fromStdString(path));
    EXPECT_EQ(text("Pathtxt").text().toStdString(), path);
    EXPECT_EQ(text("Pathtxt").toolTip().toStdString(), path);
    EXPECT_EQ(text("MinVal").text(), "-12.5");
    EXPECT_EQ(text("MaxVal").text(), "250");
    EXPECT_EQ(text("Text1").text(), "sea level");
    EXPECT_TRUE(selectButton().isEnabled());

    row.setLutName("Coast");
    EXPECT_EQ(text("Text1").text(), "Coast");
}

// --- Fitting through the ApplyOptions property ---------------------------------------

TEST_F(RowWidgetTest, TheApplyOptionsPropertyRefitsTheFileAsStoredOnDisk) {
    const std::string path = saveLut(folder, "two.lut", tableAt({0, 200}));
    row.setDataMin(50);
    row.setDataMax(150);
    row.setFilePath(QString::fromStdString(path));
    ASSERT_TRUE(row.setProperty("ApplyOptions", int{WarpToFitData}));
    EXPECT_EQ(row.ApplyOptions(), WarpToFitData);
    EXPECT_EQ(text("MinVal").text(), "50");
    EXPECT_EQ(text("MaxVal").text(), "150");
    row.setProperty("ApplyOptions", int{ClipDataToColors});
    EXPECT_EQ(text("MinVal").text(), "0") << "the warp must not carry over";
    EXPECT_EQ(text("MaxVal").text(), "200");
}

TEST_F(RowWidgetTest, AQuietRowNotesARefusalInsteadOfShowingIt) {
    const std::string path =
        saveLut(folder, "ten.lut", tableAt({0, 10, 20, 30, 40, 50, 60, 70, 80, 90}));
    row.setDataMin(55);
    row.setDataMax(80);
    row.setQuiet(true);
    row.setApplyOptions(ClipColorToData);
    row.setFilePath(QString::fromStdString(path));
    EXPECT_TRUE(services.messages().empty());
    ASSERT_EQ(row.notes().size(), 1);
    EXPECT_TRUE(
        row.notes().front().startsWith("Can't do that for " + QString::fromStdString(path)));
    EXPECT_EQ(row.ApplyOptions(), ClipDataToColors);
    EXPECT_FALSE(row.findChild<QLabel*>("Note")->isHidden());

    row.setQuiet(false);
    row.setApplyOptions(ClipColorToData);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages().front().icon, MessageIcon::Critical);
    EXPECT_TRUE(row.notes().isEmpty());
    EXPECT_TRUE(row.findChild<QLabel*>("Note")->isHidden());
}

// --- The bar -------------------------------------------------------------------------

TEST_F(RowWidgetTest, FlatIntervalsPaintTheirOwnColourOnTheirShareOfTheBar) {
    LutTable table = tableAt({0, 100, 200}, {kRed, kGreen, kWhite});
    for (LutNode& node : table)
        node.method = MethodNone;
    row.setFilePath(QString::fromStdString(saveLut(folder, "flat.lut", table)));
    const QImage image = barImage();
    const int width = image.width();
    ASSERT_GT(width, 100);
    const int y = image.height() / 2;
    EXPECT_EQ(image.pixelColor(1, y), qColorOf(kRed));
    EXPECT_EQ(image.pixelColor(width / 2 - 2, y), qColorOf(kRed));
    EXPECT_EQ(image.pixelColor(width / 2 + 2, y), qColorOf(kGreen));
    EXPECT_EQ(image.pixelColor(width - 2, y), qColorOf(kGreen));
}

TEST_F(RowWidgetTest, EveryColumnShowsTheLastSliceHoldingItsCentre) {
    LutTable table = tableAt({-40, 10, 30, 160}, {kBlack, kRed, kWhite, kGreen});
    table[1].method = MethodLog;
    table[2].method = MethodExpPlus;
    row.setFilePath(QString::fromStdString(saveLut(folder, "ramp.lut", table)));
    const QImage image = barImage(700);
    const auto scale = row.model().barScale();
    ASSERT_TRUE(scale);
    const std::vector<BarSlice> slices = row.model().barSlices();
    ASSERT_FALSE(slices.empty());
    const double left = scale->first;
    const double span = double(scale->second) - left;
    int checked = 0;
    for (int c = 0; c < image.width(); ++c) {
        const double centre = left + (c + 0.5) * span / image.width();
        const BarSlice* holder = nullptr;
        for (const BarSlice& slice : slices)
            if (slice.x0 <= centre && centre < slice.x1)
                holder = &slice;
        if (!holder)
            continue;
        ++checked;
        EXPECT_EQ(image.pixelColor(c, image.height() / 2), qColorOf(holder->color))
            << "column " << c;
    }
    EXPECT_GT(checked, image.width() - 3);
}

TEST_F(RowWidgetTest, ThePointerReadOutIsTheDataValueInFixed) {
    row.setFilePath(QString::fromStdString(saveLut(folder, "r.lut", tableAt({100, 300}))));
    barImage();
    const int width = bar().width();
    QMouseEvent move(QEvent::MouseMove, QPointF(width / 4.0, 5),
                     bar().mapToGlobal(QPointF(width / 4.0, 5)), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&bar(), &move);
    EXPECT_EQ(bar().toolTip().toStdString(), formatFixed(150.0));
}

// --- Selection -----------------------------------------------------------------------

TEST_F(RowWidgetTest, SelectHandsOverTheTableCutToTheDataAndTheNoDataColour) {
    row.setDataMin(50);
    row.setDataMax(150);
    row.setFilePath(QString::fromStdString(
        saveLut(folder, "bw.lut", tableAt({0, 100, 200}, {kBlack, kWhite, kBlack}), kRed)));
    QSignalSpy spy(&row, &ColorBarRow::Selected);
    QTest::mouseClick(&selectButton(), Qt::LeftButton);
    ASSERT_EQ(spy.count(), 1);
    const auto table = spy.at(0).at(0).value<LutTable>();
    const ColorValue noData = spy.at(0).at(1).value<ColorValue>();
    EXPECT_EQ(noData, kRed);
    ASSERT_EQ(table.size(), 3u);
    EXPECT_EQ(table[0].value, 50.0f);
    EXPECT_EQ(table[0].color, BlendColor(kBlack, kWhite, 0.5f));
    EXPECT_EQ(table[1].value, 100.0f);
    EXPECT_EQ(table[1].color, kWhite);
    EXPECT_EQ(table[2].value, 150.0f);
    EXPECT_EQ(table[2].color, BlendColor(kWhite, kBlack, 0.5f));
}

TEST_F(RowWidgetTest, SelectInTheWarpModeHandsOverTheWarpedTable) {
    row.setDataMin(-5);
    row.setDataMax(5);
    row.setApplyOptions(WarpToFitData);
    row.setFilePath(QString::fromStdString(saveLut(folder, "two.lut", tableAt({0, 200}))));
    QSignalSpy spy(&row, &ColorBarRow::Selected);
    row.SelectBtn_Click();
    ASSERT_EQ(spy.count(), 1);
    const auto table = spy.at(0).at(0).value<LutTable>();
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table[0].value, -5.0f);
    EXPECT_EQ(table[1].value, 5.0f);
}

} // namespace
} // namespace huebase
