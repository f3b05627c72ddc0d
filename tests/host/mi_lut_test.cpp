// The startup window as the user and the host meet it: start on a scratch
// folder, the editor's OK answered with the rewritten "lut.tmp", the window's
// own OK, and the library buttons of the editor it opens.
#include "host/mi_lut.h"

#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"
#include "browser/lut_file.h"
#include "color/color_picker.h"
#include "core/lut_ctl.h"
#include "editor/lut_editor_window.h"
#include "host/host_notifier.h"

#include "support/modal_window.h"
#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>

namespace huebase {
namespace {

class RecordingNotifier : public HostNotifier {
public:
    bool tell(const std::string& status) override {
        statuses.push_back(status);
        return true;
    }
    std::string unreachableMessage() const override { return "host gone"; }

    std::vector<std::string> statuses;
};

void click(QWidget& window, const char* name) {
    auto* button = window.findChild<QPushButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

class MILutTest : public ::testing::Test {
protected:
    MILutTest() : window_(folderPath(), notifier_) {}

    std::string folderPath() const {
        const std::u8string utf8 = folder_.path().u8string();
        return std::string(utf8.begin(), utf8.end());
    }
    std::string read(const char* name) const {
        std::ifstream in(folder_.path() / name, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    LutEditorWindow& editor() { return window_.LUTCtl1().editor(); }

    testing::ScratchFolder folder_;
    testing::ServiceRecorder services_;
    RecordingNotifier notifier_;
    MILut window_;
};

// --- Start -------------------------------------------------------------------

TEST_F(MILutTest, StartHandsTheHostsDistributionToTheControlWithoutShowingAWindow) {
    folder_.write("col.tmp", "-5, 2\r\n0,7\r\n12.5,1");
    ASSERT_TRUE(window_.loadValues());
    EXPECT_TRUE(window_.LUTCtl1().loaded());
    EXPECT_EQ(editor().AltiArrays(), (std::vector<float>{-5.0f, 0.0f, 12.5f}));
    EXPECT_EQ(editor().DataMin(), -5.0f);
    EXPECT_EQ(editor().DataMax(), 12.5f);
    // The control has the editor's first table: black at the bottom, white at the top.
    ASSERT_EQ(window_.LUTCtl1().getLUT().size(), 2u);
    EXPECT_EQ(window_.LUTCtl1().ClutInterpolate(12.5f), 0xFFFFFF);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_FALSE(editor().isVisible());
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_FALSE(services_.ended());
}

TEST_F(MILutTest, WithoutColTmpTheProgramEndsSilentlyBeforeAnythingIsShown) {
    folder_.write("lut.tmp", "1,1\n");
    EXPECT_FALSE(window_.loadValues());
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_FALSE(window_.LUTCtl1().loaded());
    EXPECT_TRUE(notifier_.statuses.empty());
    EXPECT_EQ(read("lut.tmp"), "1,1\n");
}

TEST_F(MILutTest, ValuesTheEditorCannotTakeAreShownAsAnErrorAndEndTheProgram) {
    folder_.write("col.tmp", "1,2\n\"high\",3\n");
    EXPECT_FALSE(window_.loadValues());
    ASSERT_EQ(services_.messages().size(), 1u);
    EXPECT_EQ(services_.messages()[0].text, "Error: 13. Type mismatch");
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{HostSession::kStartFailedExitCode});
    EXPECT_TRUE(notifier_.statuses.empty());
}

TEST_F(MILutTest, AnUnreadableColTmpIsShownAndEndsTheProgramWithoutOpeningTheEditor) {
    folder_.write("col.tmp", "1,2\n3\n");
    bool editorOpened = false;
    QObject guard; // the timer goes with it when no loop ran
    QTimer::singleShot(0, &guard, [&] {
        if (QApplication::activeModalWidget() != nullptr) {
            editorOpened = true;
            QApplication::activeModalWidget()->hide();
        }
    });
    window_.Form_Load();
    EXPECT_FALSE(editorOpened);
    ASSERT_EQ(services_.messages().size(), 1u);
    EXPECT_EQ(services_.messages()[0].text, "Error: 62. Input past end of file");
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{HostSession::kStartFailedExitCode});
}

// --- The editor's OK ------------------------------------------------------------

TEST_F(MILutTest, OkInTheEditorRewritesLutTmpInHostColoursAndTellsTheHost) {
    folder_.write("col.tmp", "10,4\n20,1\n30,2\n");
    folder_.write("lut.tmp", "30,1\n10,2\n99,3\n30,1\n20,4.5\n");
    // Red at 10 rising to blue at 30, flat blue from there: the host's
    // colour order is red in the high byte.
    const LutTable ramp = {{10.0f, MethodLin, 0x0000FF, 30.0f},
                           {30.0f, MethodNone, 0xFF0000, 30.0f}};
    bool editorWasShown = false;
    testing::whenModalOpens<LutEditorWindow>([&](LutEditorWindow& shown) {
        editorWasShown = shown.isVisible();
        shown.SetLutTable(ramp);
        click(shown, "OK");
    });
    window_.Form_Load();

    ASSERT_TRUE(editorWasShown);
    EXPECT_FALSE(editor().isVisible());
    const std::int32_t middle = [&] {
        const ColorValue c = BlendColor(0x0000FF, 0xFF0000, 0.5f);
        return RedOf(c) * 65536 + GreenOf(c) * 256 + BlueOf(c);
    }();
    EXPECT_EQ(read("lut.tmp"), "1.00,255.00\n2.00,16711680.00\n3.00,0.00\n1.00,255.00\n4.50," +
                                   std::to_string(middle) + ".00\n");
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"0G"});
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
    EXPECT_TRUE(services_.messages().empty());
}

TEST_F(MILutTest, OkInTheEditorWithoutLutTmpEndsWithoutTellingTheHost) {
    folder_.write("col.tmp", "10,4\n20,1\n");
    testing::whenModalOpens<LutEditorWindow>([](LutEditorWindow& shown) { click(shown, "OK"); });
    window_.Form_Load();
    EXPECT_FALSE(std::filesystem::exists(folder_.path() / "lut.tmp"));
    EXPECT_TRUE(notifier_.statuses.empty());
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
}

TEST_F(MILutTest, AnUnreadableExportTableIsReportedAndTheHostToldOfTheFailure) {
    folder_.write("col.tmp", "10,4\n20,1\n");
    folder_.write("lut.tmp", "10,1\n20\n");
    testing::whenModalOpens<LutEditorWindow>([](LutEditorWindow& shown) { click(shown, "OK"); });
    window_.Form_Load();
    ASSERT_EQ(services_.messages().size(), 1u);
    EXPECT_EQ(services_.messages()[0].text, "Can't find export values table");
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"-1G"});
    EXPECT_EQ(read("lut.tmp"), "10,1\n20\n");
}

// --- The startup window's own controls ---------------------------------------------

TEST_F(MILutTest, ItsOkEndsTheProgramWithoutTouchingEitherFile) {
    folder_.write("col.tmp", "10,4\n20,1\n");
    folder_.write("lut.tmp", "10,1\n20,2\n");
    ASSERT_TRUE(window_.loadValues());
    window_.show();
    ASSERT_NE(window_.findChild<LUTCtl*>("LUTCtl1"), nullptr);
    ASSERT_NE(window_.findChild<ColorPicker*>("ColorPicker"), nullptr);
    click(window_, "OK");
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
    EXPECT_EQ(read("col.tmp"), "10,4\n20,1\n");
    EXPECT_EQ(read("lut.tmp"), "10,1\n20,2\n");
    EXPECT_TRUE(notifier_.statuses.empty());
    EXPECT_TRUE(services_.messages().empty());
}

// --- The editor's library ------------------------------------------------------------

TEST_F(MILutTest, TheEditorsLibraryButtonFitsAStarterRampFromMyLutsIntoTheEditor) {
    folder_.write("col.tmp", "100,4\n300,1\n");
    std::filesystem::create_directory(folder_.path() / "myLuts");
    // Spanning the data on both sides, so every fitting mode lands on 100..300.
    const LutTable saved = {{0.0f, MethodLin, 0x00FF00, 200.0f},
                            {200.0f, MethodLin, 0x0000FF, 400.0f},
                            {400.0f, MethodLin, 0xFF0000, 400.0f}};
    folder_.write("myLuts/ramp.lut", LutFile::text(saved, 0x123456, '.'));
    ASSERT_TRUE(window_.loadValues());

    testing::whenModalOpens<LUTBrowser>([](LUTBrowser& browser) {
        ASSERT_EQ(browser.rows().size(), 1u);
        QTest::mouseClick(browser.rows()[0]->findChild<QPushButton*>("SelectBtn"), Qt::LeftButton);
    });
    click(editor(), "OpenBrowser");

    const LutTable& table = editor().model().lutTable();
    ASSERT_EQ(table.size(), 3u);
    EXPECT_EQ(table.front().value, 100.0f);
    EXPECT_EQ(table[1].value, 200.0f);
    EXPECT_EQ(table[1].color, 0x0000FF);
    EXPECT_EQ(table.back().value, 300.0f);
    EXPECT_EQ(editor().noDataColor(), 0x123456);
}

} // namespace
} // namespace huebase
