#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"
#include "browser/lut_fitting.h"
#include "browser/lut_library.h"
#include "util/misc_files.h"
#include "util/vb_format.h"

#include "browser/lut_test_support.h"
#include "support/accessible_names.h"
#include "support/service_recorder.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace huebase {
namespace {

using testing::saveLut;
using testing::tableAt;

class RowWidgetTest : public ::testing::Test {
protected:
    QString text(const char* name) { return row.findChild<QLineEdit*>(name)->text(); }
    QWidget& bar() { return *row.findChild<QWidget*>("ColorBar"); }
    bool selectEnabled() { return row.findChild<QWidget*>("SelectBtn")->isEnabled(); }
    void open(const std::string& name, const LutTable& table) {
        row.setFilePath(QString::fromStdString(saveLut(folder, name, table)));
    }
    QImage barImage() {
        row.resize(700, row.sizeHint().height());
        row.show();
        QCoreApplication::processEvents();
        return bar().grab().toImage();
    }

    testing::ScratchFolder folder;
    testing::ServiceRecorder services;
    ColorBarRow row;
};

TEST_F(RowWidgetTest, AFilePathShowsThePathTheBoundsAndTheTablesName) {
    EXPECT_EQ(text("MinVal"), "MinVal");
    EXPECT_EQ(text("MaxVal"), "MaxVal");
    EXPECT_FALSE(selectEnabled()) << "nothing to hand over yet";
    open("sea level.lut", tableAt({-12.5f, 0, 250}));
    const QString path = QString::fromStdString(folder.file("sea level.lut"));
    EXPECT_EQ(text("Pathtxt"), path);
    EXPECT_EQ(row.findChild<QLineEdit*>("Pathtxt")->toolTip(), path);
    EXPECT_EQ(text("MinVal"), "-12.5");
    EXPECT_EQ(text("MaxVal"), "250");
    EXPECT_EQ(text("Text1"), "sea level");
    EXPECT_TRUE(selectEnabled());
    row.setLutName("Coast");
    EXPECT_EQ(text("Text1"), "Coast");
}

TEST_F(RowWidgetTest, EveryColumnShowsTheLastSliceHoldingItsCentreAndThePointerReadsOut) {
    LutTable table = tableAt({-40, 10, 30, 160}, {0x000000, 0x0000FF, 0xFFFFFF, 0x00FF00});
    table[1].method = MethodLog;
    table[2].method = MethodExpPlus;
    open("ramp.lut", table);
    const QImage image = barImage();
    const std::vector<ColorSlice> slices = row.model().barSlices();
    ASSERT_FALSE(slices.empty());
    int checked = 0;
    for (int c = 0; c < image.width(); ++c) {
        const double centre = -40.0 + (c + 0.5) * 200.0 / image.width();
        const ColorSlice* holder = nullptr;
        for (const ColorSlice& slice : slices)
            if (slice.x0 <= centre && centre < slice.x1)
                holder = &slice;
        if (!holder)
            continue;
        ++checked;
        const ColorValue color = holder->color;
        EXPECT_EQ(image.pixelColor(c, image.height() / 2),
                  QColor(RedOf(color), GreenOf(color), BlueOf(color)))
            << "column " << c;
    }
    EXPECT_GT(checked, image.width() - 3);

    const QPointF at(bar().width() / 4.0, 5);
    QMouseEvent move(QEvent::MouseMove, at, bar().mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&bar(), &move);
    EXPECT_EQ(bar().toolTip().toStdString(), formatFixed(10.0)); // "10.00"
}

// A program folder whose library "myLuts" the tests fill.
class BrowserTest : public ::testing::Test {
protected:
    std::string library() const { return LutLibrary::folderOf(program.path().string()); }
    std::string addFile(const std::string& name, const LutTable& table) {
        const std::string path = library() + "/" + name;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << LutFile::text(table, 0, '.');
        return path;
    }
    void open() {
        browser.loadLibrary(program.path().string());
        browser.resize(980, 640);
    }
    QListWidget& list(const char* name) { return *browser.findChild<QListWidget*>(name); }
    QRadioButton& option(int n) {
        return *browser.findChild<QRadioButton*>(QString("Option%1").arg(n));
    }
    void clickFile(const QString& name) {
        const auto items = list("FileList").findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        QTest::mouseClick(list("FileList").viewport(), Qt::LeftButton, {},
                          list("FileList").visualItemRect(items.front()).center());
    }
    std::vector<std::string> shownPaths() const {
        std::vector<std::string> paths;
        for (const ColorBarRow* row : browser.rows())
            paths.push_back(row->FilePath().toStdString());
        return paths;
    }

    testing::ScratchFolder program;
    testing::ServiceRecorder services;
    LUTBrowser browser;
};

TEST_F(BrowserTest, TheFirstStartCreatesTheLibraryAndOpensItEmptyInMode0) {
    open();
    EXPECT_TRUE(MiscFiles::DirExists(library()));
    EXPECT_EQ(list("FileList").count(), 0);
    EXPECT_TRUE(browser.rows().empty());
    EXPECT_EQ(list("DirList").currentItem()->data(Qt::UserRole),
              QDir(QString::fromStdString(library())).absolutePath());
    EXPECT_EQ(browser.windowTitle(), "LUT Browser");
    EXPECT_EQ(browser.findChild<QGroupBox*>("OptionFrame")->title(), "Display / Apply Options");
    const char* captions[][2] = {
        {"Clip data to colors", "Data outside the LUT range, will be colorized as nodata"},
        {"Clip color to data", "Upper and lower colors will be extended to out range data"},
        {"Warp to Fit current data", "Colors applied as percentiles of the data"}};
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(option(n).text(), captions[n - 1][0]);
        EXPECT_EQ(option(n).toolTip(), captions[n - 1][1]);
        EXPECT_EQ(option(n).isChecked(), n == 1);
    }
    EXPECT_EQ(browser.fittingMode(), 0);
    EXPECT_TRUE(services.messages().empty());
}

TEST_F(BrowserTest, ClickedFilesComeFirstAndEveryRowFollowsTheMode) {
    browser.setDataMin(55);
    browser.setDataMax(80);
    const std::string a = addFile("A.LUT", tableAt({-100, 0, 100}));
    const std::string b = addFile("b.lut", tableAt({0, 100}));
    const std::string ten = addFile("ten.lut", tableAt({0, 10, 20, 30, 40, 50, 60, 70, 80, 90}));
    addFile("notes.txt", tableAt({0, 1}));
    open();
    ASSERT_EQ(list("FileList").count(), 3);
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{a, b, ten}));
    for (const ColorBarRow* row : browser.rows()) {
        EXPECT_EQ(row->objectName(), "ColorTableRow1");
        EXPECT_EQ(row->DataMin(), 55.0f);
        EXPECT_EQ(row->DataMax(), 80.0f);
    }
    QTest::mouseClick(&option(2), Qt::LeftButton);
    EXPECT_TRUE(services.messages().empty()) << "rows nobody chose keep their messages";
    clickFile("b.lut");
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{b, a, ten}));
    EXPECT_EQ(browser.chosenRow(), browser.rows().front());
    EXPECT_EQ(browser.rows().front()->ApplyOptions(), ClipColorToData);

    // The chosen file is refused in mode 1: its row falls back, the options keep mode 1.
    clickFile("ten.lut");
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{ten, b, a}));
    EXPECT_TRUE(browser.rows()[1]->isQuiet()) << "only the chosen row speaks";
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text,
              "Can't do that for " + ten + " minimum data is above LUT max bound ...");
    EXPECT_EQ(browser.rows().front()->ApplyOptions(), ClipDataToColors);
    EXPECT_EQ(browser.rows().front()->lut().size(), 5u);
    EXPECT_TRUE(option(2).isChecked());
    EXPECT_EQ(browser.fittingMode(), ClipColorToData);

    QTest::mouseClick(&option(3), Qt::LeftButton);
    for (const ColorBarRow* row : browser.rows()) {
        EXPECT_EQ(row->ApplyOptions(), WarpToFitData);
        EXPECT_EQ(row->min(), "55");
        EXPECT_EQ(row->max(), "80");
    }
    QTest::mouseClick(&option(1), Qt::LeftButton);
    EXPECT_EQ(browser.rows()[1]->max(), "100");
}

TEST_F(BrowserTest, EveryControlIsNamedOnceAndEveryRowsControlsByItsFile) {
    for (const char* name : {"Terrain.lut", "Sea.lut", "Ice.lut", "Desert.lut"})
        addFile(name, tableAt({0, 1}));
    addFile("more/inner.lut", tableAt({0, 1}));
    open();
    browser.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&browser));
    const std::vector<std::string> none;
    EXPECT_EQ(testing::accessibleNameFaults(browser), none);
    clickFile("Sea.lut");
    EXPECT_EQ(testing::accessibleNameFaults(browser), none) << "after choosing a file";
    const ColorBarRow& first = *browser.rows().front();
    EXPECT_EQ(first.findChild<QPushButton*>("SelectBtn")->accessibleName().toStdString(),
              "Select Sea.lut");
    EXPECT_EQ(first.findChild<QLineEdit*>("MaxVal")->accessibleName().toStdString(),
              "Sea.lut upper bound");
}

TEST_F(BrowserTest, ChangingFolderOrDriveShowsThatFoldersFiles) {
    addFile("top.lut", tableAt({0, 1}));
    const std::string inner = addFile("more/inner.lut", tableAt({0, 1}));
    open();
    const auto sub = list("DirList").findItems("more", Qt::MatchEndsWith);
    ASSERT_EQ(sub.size(), 1);
    emit list("DirList").itemActivated(sub.front());
    EXPECT_EQ(list("FileList").count(), 1);
    EXPECT_EQ(shownPaths(), (std::vector<std::string>{inner}));

    auto& drives = *browser.findChild<QComboBox*>("DriveList");
    ASSERT_GE(drives.count(), 1);
    emit drives.activated(0);
    EXPECT_EQ(list("DirList").currentItem()->data(Qt::UserRole).toString(),
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

TEST_F(BrowserTest, EveryFileOfABrokenLibraryGetsARowWithItsBarOrANoteInEveryMode) {
    std::string manyRecords = "0,32767\r\n";
    for (int i = 0; i < 32768; ++i)
        manyRecords += std::to_string(i) + ".00,0.00,255.00," + std::to_string(i + 1) + ".00\r\n";
    std::string garbage;
    for (int i = 0; i < 4096; ++i)
        garbage += static_cast<char>((i * 7919) % 256);
    const struct {
        const char* name;
        std::string bytes;
        bool drawn; // the bar shows a table; otherwise the row notes why not
    } files[] = {
        {"negative colour", "0,2\r\n100.00,0.00,-1.00,200.00\r\n200.00,0.00,0.00,200.00\r\n",
         false},
        {"colour 2^24", "0,2\r\n0.00,0.00,16777216.00,1.00\r\n1.00,0.00,0.00,1.00\r\n", false},
        {"not ascending", LutFile::text(tableAt({0, 1, -1e15f, 1}), 0, '.'), true},
        {"float ends", LutFile::text(tableAt({-3.4e38f, 0, 3.4e38f}), 0, '.'), true},
        {"beyond float", "0,2\r\n0.00,0.00,0.00,1e39\r\n1e39,0.00,0.00,1e39\r\n", false},
        {"32768 records", manyRecords, true},
        {"count 40000", "0,40000\r\n0.00,0.00,0.00,1.00\r\n1.00,0.00,255.00,1.00\r\n", false},
        {"decimal comma", LutFile::text(tableAt({-5, 5}), 0, ','), true},
        {"equal ends", LutFile::text(tableAt({5, 5}), 0, '.'), true}, // no warp: a note
        {"empty", "", false},
        {"garbage", garbage, false},
        {"long line", "0,1\r\n" + std::string(100000, '7') + "\r\n", false},
    };
    std::filesystem::create_directories(library());
    for (const auto& file : files)
        std::ofstream(library() + "/" + file.name + ".lut", std::ios::binary) << file.bytes;
    std::filesystem::create_directories(library() + "/x.lut");
    browser.setDataMin(-10);
    browser.setDataMax(10);
    open();
    browser.show();
    ASSERT_EQ(browser.rows().size(), std::size(files)) << "a folder is no colour table";
    for (int mode = 1; mode <= 3; ++mode) {
        QTest::mouseClick(&option(mode), Qt::LeftButton);
        browser.grab();
        QCoreApplication::processEvents();
        for (const ColorBarRow* row : browser.rows()) {
            SCOPED_TRACE(row->FilePath().toStdString() + " in mode " + std::to_string(mode));
            const auto* file = std::find_if(std::begin(files), std::end(files), [&](const auto& f) {
                return row->FilePath().endsWith(QString(f.name) + ".lut");
            });
            ASSERT_NE(file, std::end(files));
            if (!file->drawn) {
                EXPECT_FALSE(row->notes().isEmpty());
            } else if (mode != WarpToFitData + 1 || row->notes().isEmpty()) {
                EXPECT_FALSE(row->lut().empty());
            }
        }
    }
    EXPECT_TRUE(services.messages().empty()) << "rows nobody chose keep their messages";
    for (const auto& file : files) {
        clickFile(QString(file.name) + ".lut");
        browser.grab();
        QCoreApplication::processEvents();
        if (!file.drawn) {
            EXPECT_FALSE(browser.chosenRow()->notes().isEmpty()) << "the chosen row keeps it too";
        }
    }
    EXPECT_LE(services.messages().size(), 2 * std::size(files)) << "one box per cause";
    for (const MessageRequest& message : services.messages()) {
        EXPECT_TRUE(message.text.starts_with("Error: ")) << message.text;
        EXPECT_TRUE(message.title == "LoadLut" || message.title == "LUT Browser") << message.title;
    }
    EXPECT_TRUE(std::ranges::any_of(services.messages(), [](const MessageRequest& message) {
        return message.title == "LUT Browser"; // the warp over equal ends
    }));
}

} // namespace
} // namespace huebase
