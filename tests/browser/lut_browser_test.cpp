#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"
#include "browser/lut_fitting.h"
#include "browser/lut_library.h"
#include "util/misc_files.h"

#include "browser/widget_test_support.h"
#include "support/service_recorder.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace huebase {
namespace {

using testing::saveLut;
using testing::ScratchFolder;
using testing::ServiceRecorder;
using testing::tableAt;
using testing::whenModalOpens;

constexpr float kDataMin = -1437.0f;
constexpr float kDataMax = 2205.0f;

// A program folder with a library "myLuts" the tests fill.
class BrowserTest : public ::testing::Test {
protected:
    BrowserTest() {
        std::filesystem::create_directory(program.path() / "myLuts");
        browser.setDataMin(kDataMin);
        browser.setDataMax(kDataMax);
    }

    std::string library() const { return LutLibrary::folderOf(program.path().string()); }
    std::string addFile(const std::string& name, const LutTable& table) {
        const std::string path = library() + "/" + name;
        std::ofstream(path, std::ios::binary) << LutFile::text(table, 0, '.');
        return path;
    }
    void open() {
        browser.loadLibrary(program.path().string());
        browser.resize(980, 640);
    }
    QListWidget& fileList() { return *browser.findChild<QListWidget*>("FileList"); }
    QRadioButton& option(int n) {
        return *browser.findChild<QRadioButton*>(QString("Option%1").arg(n));
    }
    void clickFile(const QString& name) {
        const auto items = fileList().findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        QTest::mouseClick(fileList().viewport(), Qt::LeftButton, {},
                          fileList().visualItemRect(items.front()).center());
    }
    std::vector<std::string> shownPaths() const {
        std::vector<std::string> paths;
        for (const ColorBarRow* row : browser.rows())
            paths.push_back(row->FilePath().toStdString());
        return paths;
    }

    ScratchFolder program;
    ServiceRecorder services;
    LUTBrowser browser;
};

// --- Opening -----------------------------------------------------------------------

TEST(BrowserFirstStart, CreatesTheLibraryAndOpensItEmpty) {
    ScratchFolder program;
    ServiceRecorder services;
    LUTBrowser browser;
    browser.loadLibrary(program.path().string());
    const std::string library = LutLibrary::folderOf(program.path().string());
    EXPECT_TRUE(MiscFiles::DirExists(library));
    EXPECT_EQ(browser.findChild<QListWidget*>("FileList")->count(), 0);
    EXPECT_TRUE(browser.rows().empty());
    EXPECT_EQ(browser.findChild<QListWidget*>("DirList")->currentItem()->data(Qt::UserRole),
              QDir(QString::fromStdString(library)).absolutePath());
    EXPECT_EQ(browser.windowTitle(), "LUT Browser");
    EXPECT_TRUE(browser.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(services.messages().empty());
}

TEST_F(BrowserTest, TheOptionsCarryTheirCaptionsAndTooltipsAndStartInMode0) {
    open();
    EXPECT_EQ(browser.findChild<QGroupBox*>("OptionFrame")->title(), "Display / Apply Options");
    EXPECT_EQ(option(1).text(), "Clip data to colors");
    EXPECT_EQ(option(1).toolTip(), "Data outside the LUT range, will be colorized as nodata");
    EXPECT_EQ(option(2).text(), "Clip color to data");
    EXPECT_EQ(option(2).toolTip(), "Upper and lower colors will be extended to out range data");
    EXPECT_EQ(option(3).text(), "Warp to Fit current data");
    EXPECT_EQ(option(3).toolTip(), "Colors applied as percentiles of the data");
    EXPECT_TRUE(option(1).isChecked());
    EXPECT_EQ(browser.fittingMode(), 0);
    EXPECT_GE(browser.findChild<QComboBox*>("DriveList")->count(), 1);
    for (const char* name : {"RowColContainerSup", "RowColContainer", "Cancel"})
        EXPECT_NE(browser.findChild<QWidget*>(name), nullptr) << name;
}

// --- The gallery ---------------------------------------------------------------------

TEST_F(BrowserTest, EveryLutOfTheFolderIsARowAndTheClickedOneComesFirst) {
    const std::string b = addFile("b.lut", tableAt({0, 100}));
    const std::string a = addFile("A.LUT", tableAt({-100, 0, 100}));
    const std::string c = addFile("c.lut", tableAt({5, 6}));
    addFile("notes.txt", tableAt({0, 1}));
    open();
    ASSERT_EQ(fileList().count(), 3);
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{a, b, c}));
    for (const ColorBarRow* row : browser.rows()) {
        EXPECT_EQ(row->objectName(), "ColorTableRow1");
        EXPECT_EQ(row->DataMin(), kDataMin);
        EXPECT_EQ(row->DataMax(), kDataMax);
    }

    clickFile("b.lut");
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{b, a, c}));
    EXPECT_EQ(browser.chosenRow(), browser.rows().front());
    clickFile("c.lut");
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{c, b, a}));
    EXPECT_TRUE(browser.rows()[1]->isQuiet()) << "only the chosen row speaks";
    EXPECT_FALSE(browser.rows()[0]->isQuiet());
}

TEST_F(BrowserTest, AModeChangeReachesEveryRow) {
    for (int i = 0; i < 5; ++i)
        addFile("r" + std::to_string(i) + ".lut", tableAt({-3000.0f + i, 0, 4000}));
    open();
    clickFile("r2.lut");
    QTest::mouseClick(&option(3), Qt::LeftButton);
    EXPECT_EQ(browser.fittingMode(), WarpToFitData);
    for (const ColorBarRow* row : browser.rows()) {
        EXPECT_EQ(row->ApplyOptions(), WarpToFitData);
        EXPECT_EQ(row->min(), "-1437");
        EXPECT_EQ(row->max(), "2205");
    }
    QTest::mouseClick(&option(1), Qt::LeftButton);
    for (const ColorBarRow* row : browser.rows())
        EXPECT_EQ(row->max(), "4000");
}

TEST_F(BrowserTest, ARefusalInClipModeFallsBackForThatRowWhileTheOptionsKeepClip) {
    browser.setDataMin(55);
    browser.setDataMax(80);
    const std::string ten = addFile("ten.lut", tableAt({0, 10, 20, 30, 40, 50, 60, 70, 80, 90}));
    addFile("wide.lut", tableAt({0, 100}));
    open();
    QTest::mouseClick(&option(2), Qt::LeftButton);
    EXPECT_TRUE(services.messages().empty()) << "rows nobody chose keep their messages";

    clickFile("wide.lut");
    EXPECT_EQ(browser.rows().front()->ApplyOptions(), ClipColorToData);
    clickFile("ten.lut");
    ColorBarRow* row = browser.rows().front();
    ASSERT_EQ(row->FilePath().toStdString(), ten);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text,
              "Can't do that for " + ten + " minimum data is above LUT max bound ...");
    EXPECT_EQ(services.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(row->ApplyOptions(), ClipDataToColors);
    EXPECT_EQ(row->lut().size(), 5u);
    EXPECT_TRUE(option(2).isChecked());
    EXPECT_EQ(browser.fittingMode(), ClipColorToData);
}

TEST_F(BrowserTest, ChangingFolderOrDriveShowsThatFoldersFiles) {
    addFile("top.lut", tableAt({0, 1}));
    std::filesystem::create_directory(library() + "/more");
    const std::string inner = addFile("more/inner.lut", tableAt({0, 1}));
    open();
    auto& folders = *browser.findChild<QListWidget*>("DirList");
    const auto sub = folders.findItems("more", Qt::MatchEndsWith);
    ASSERT_EQ(sub.size(), 1);
    emit folders.itemActivated(sub.front());
    EXPECT_EQ(fileList().count(), 1);
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{inner}));

    auto& drives = *browser.findChild<QComboBox*>("DriveList");
    emit drives.activated(0);
    EXPECT_EQ(folders.currentItem()->data(Qt::UserRole).toString(),
              QDir::cleanPath(drives.itemData(0).toString()));
}

TEST_F(BrowserTest, TheScrollBarsMoveTheRowsAndFollowTheWindowsSize) {
    for (int i = 0; i < 30; ++i)
        addFile("r" + std::to_string(i) + ".lut", tableAt({0, 100}));
    open();
    browser.show();
    QCoreApplication::processEvents();
    auto& vertical = *browser.findChild<QScrollBar*>("VScroll1");
    auto& horizontal = *browser.findChild<QScrollBar*>("HScroll1");
    QWidget& rows = *browser.findChild<QWidget*>("RowColContainer");
    QWidget& view = *browser.findChild<QWidget*>("RowColContainerSup");
    EXPECT_EQ(rows.height(), 30 * browser.rows().front()->height());
    EXPECT_EQ(vertical.maximum(), rows.height() - view.height());
    EXPECT_TRUE(horizontal.isHidden());
    vertical.setValue(120);
    EXPECT_EQ(rows.y(), -120);

    browser.setMinimumSize(0, 0);
    browser.resize(400, 500);
    QCoreApplication::processEvents();
    ASSERT_LT(view.width(), rows.width()) << "the rows keep a width of their own";
    EXPECT_FALSE(horizontal.isHidden());
    EXPECT_EQ(horizontal.maximum(), rows.width() - view.width());
    horizontal.setValue(horizontal.maximum());
    EXPECT_EQ(rows.x(), -horizontal.maximum());
    EXPECT_EQ(vertical.maximum(), rows.height() - view.height());
}

// --- Handing a table over ------------------------------------------------------------

TEST_F(BrowserTest, BrowseHandsTheSelectedTableToTheCallerAndCloses) {
    addFile("a.lut", tableAt({0, 1}));
    addFile("bw.lut", tableAt({0, 100, 200}, {0, 0xFFFFFF, 0}));
    std::vector<LutTable> received;
    bool closed = false;
    whenModalOpens<LUTBrowser>([&](LUTBrowser& shown) {
        EXPECT_EQ(shown.rows().size(), 2u);
        QTest::mouseClick(shown.rows()[1]->findChild<QPushButton*>("SelectBtn"), Qt::LeftButton);
        closed = !shown.isVisible();
    });
    LutLibrary::browse(nullptr, program.path().string(), 50, 150,
                       [&](const LutTable& table, ColorValue) { received.push_back(table); });
    EXPECT_TRUE(closed);
    ASSERT_EQ(received.size(), 1u);
    ASSERT_EQ(received[0].size(), 3u);
    EXPECT_EQ(received[0].front().value, 50.0f);
    EXPECT_EQ(received[0][1].color, 0xFFFFFF);
    EXPECT_EQ(received[0].back().value, 150.0f);
}

TEST_F(BrowserTest, CancelHandsOverNothing) {
    addFile("a.lut", tableAt({0, 1}));
    int calls = 0;
    whenModalOpens<LUTBrowser>([](LUTBrowser& shown) {
        QTest::mouseClick(shown.findChild<QPushButton*>("Cancel"), Qt::LeftButton);
    });
    LutLibrary::browse(nullptr, program.path().string(), 0, 1,
                       [&](const LutTable&, ColorValue) { ++calls; });
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace huebase
