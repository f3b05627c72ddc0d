// The startup window on a scratch folder: its start, its own OK and the
// editor's library button. The editor's OK is driven by the end-to-end test.
#include "host/mi_lut.h"

#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"
#include "browser/lut_file.h"
#include "browser/recovered_ramps.h"
#include "core/lut_ctl.h"
#include "editor/lut_editor_window.h"

#include "support/modal_window.h"
#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace huebase {
namespace {

// No test here ends with the host told.
struct NoNotifier : HostNotifier {
    bool tell(const std::string& status) override {
        ADD_FAILURE() << "the host was told " << status;
        return true;
    }
    std::string unreachableMessage() const override { return {}; }
};

std::string read(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

void click(QWidget& window, const char* name) {
    auto* button = window.findChild<QPushButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

class MILutTest : public ::testing::Test {
protected:
    std::string read(const char* name) const {
        std::ostringstream text;
        text << std::ifstream(folder_.path() / name, std::ios::binary).rdbuf();
        return text.str();
    }
    LutEditorWindow& editor() { return dynamic_cast<LutEditorWindow&>(window_.LUTCtl1().editor()); }

    testing::ScratchFolder folder_;
    testing::ServiceRecorder services_;
    NoNotifier notifier_;
    MILut window_{folder_.file(""), notifier_};
};

TEST_F(MILutTest, StartHandsTheHostsDistributionToTheControlWithoutShowingAWindow) {
    folder_.write("col.tmp", "-5, 2\r\n0,7\r\n12.5,1");
    ASSERT_TRUE(window_.loadValues());
    EXPECT_TRUE(window_.LUTCtl1().loaded());
    EXPECT_EQ(editor().AltiArrays(), (std::vector<float>{-5.0f, 0.0f, 12.5f}));
    EXPECT_EQ(editor().DataMin(), -5.0f);
    EXPECT_EQ(editor().DataMax(), 12.5f);
    // The editor's first table: black at the bottom, white at the top.
    ASSERT_EQ(window_.LUTCtl1().getLUT().size(), 2u);
    EXPECT_EQ(window_.LUTCtl1().ClutInterpolate(12.5f), 0xFFFFFF);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_FALSE(editor().isVisible());
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_FALSE(services_.ended());
}

TEST_F(MILutTest, ValuesTheEditorCannotTakeAreShownAndEndTheProgram) {
    const struct {
        const char* values;
        const char* text;
    } cases[] = {{"1,2\n\"high\",3\n", "Error: 13. Type mismatch"},
                 {"1,2\n1e39,3\n", "Error: 6. Overflow"}}; // beyond a 32-bit float
    for (const auto& c : cases) {
        folder_.write("col.tmp", c.values);
        EXPECT_FALSE(window_.loadValues());
        ASSERT_FALSE(services_.messages().empty());
        EXPECT_EQ(services_.messages().back().text, c.text);
    }
    EXPECT_EQ(services_.messages().size(), std::size(cases));
    EXPECT_EQ(services_.exitCodes(),
              std::vector<int>(std::size(cases), HostSession::kStartFailedExitCode));
}

TEST_F(MILutTest, ItsOwnOkEndsTheProgramWithoutTouchingEitherFile) {
    folder_.write("col.tmp", "10,4\n20,1\n");
    folder_.write("lut.tmp", "10,1\n20,2\n");
    ASSERT_TRUE(window_.loadValues());
    window_.show();
    click(window_, "OK");
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
    EXPECT_EQ(read("col.tmp"), "10,4\n20,1\n");
    EXPECT_EQ(read("lut.tmp"), "10,1\n20,2\n");
    EXPECT_TRUE(services_.messages().empty());
}

TEST_F(MILutTest, TheEditorsLibraryButtonFitsARampFromMyLutsIntoTheEditorAsOneStep) {
    folder_.write("col.tmp", "100,4\n300,1\n");
    std::filesystem::create_directory(folder_.path() / "myLuts");
    // Spanning the data on both sides, so every fitting mode lands on 100..300.
    const LutTable saved = {{0.0f, MethodLin, 0x00FF00, 200.0f},
                            {200.0f, MethodLin, 0x0000FF, 400.0f},
                            {400.0f, MethodLin, 0xFF0000, 400.0f}};
    folder_.write("myLuts/ramp.lut", LutFile::text(saved, 0x123456, '.'));
    ASSERT_TRUE(window_.loadValues());
    const RampState before = editor().model().rampState();

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

    click(editor(), "Undo"); // table and no-data colour together
    EXPECT_EQ(editor().model().rampState(), before);
}

TEST(MILutGraphSettings, TheEditorStartsWithTheFoldersGraphSettingsAndWritesTheUsersChanges) {
    testing::ScratchFolder folder;
    folder.write("huebase.ini", "count_scale=sqrt\n");
    testing::ServiceRecorder services;
    NoNotifier notifier;
    MILut window{folder.file(""), notifier};
    auto& editor = dynamic_cast<LutEditorWindow&>(window.LUTCtl1().editor());
    EXPECT_EQ(editor.graphSettings(), (GraphSettings{CountScale(CountScale::Kind::SquareRoot)}));

    editor.show();
    QTest::mouseClick(editor.findChild<QCheckBox*>("RampFill"), Qt::LeftButton);
    std::ostringstream text;
    text << std::ifstream(folder.path() / "huebase.ini").rdbuf();
    EXPECT_EQ(text.str(), "count_scale=sqrt\nramp_fill=1\n");
    EXPECT_TRUE(services.messages().empty());
    EXPECT_FALSE(services.ended());
}

// The editor of a started window on its own folder, shown as the control
// shows it, and the ramps kept beside the library.
struct StartedEditor {
    StartedEditor() {
        folder.write("col.tmp", "0,4\n100,1\n");
        EXPECT_TRUE(window.loadValues());
    }
    LutEditorWindow& editor() { return dynamic_cast<LutEditorWindow&>(window.LUTCtl1().editor()); }
    std::vector<std::string> kept() const {
        return RecoveredRamps(folder.file("myLuts/Recovered")).names();
    }

    testing::ScratchFolder folder;
    NoNotifier notifier;
    MILut window{folder.file(""), notifier};
};

TEST(KeptRamps, EveryWayOutOfAChangedEditorKeepsTheRampItHadAndStillEndsAtOnce) {
    const struct {
        const char* way;
        std::function<void(LutEditorWindow&)> leave;
        bool ends;
    } ways[] = {
        {"OK", [](LutEditorWindow& e) { click(e, "OK"); }, true}, // the host is answered
        {"Reset", [](LutEditorWindow& e) { click(e, "Command1"); }, false},
        {"Cancel", [](LutEditorWindow& e) { click(e, "Cancel"); }, true},
        {"Escape", [](LutEditorWindow& e) { QTest::keyClick(&e, Qt::Key_Escape); }, true},
        {"closing", [](LutEditorWindow& e) { e.close(); }, true},
    };
    for (const auto& w : ways) {
        SCOPED_TRACE(w.way);
        testing::ServiceRecorder services;
        StartedEditor started;
        // The real program does not come back from its end: what is kept
        // must be on disk by then.
        std::vector<std::size_t> keptAtEnd;
        const ProgramExitHandler recorder =
            setProgramExitHandler([&](int) { keptAtEnd.push_back(started.kept().size()); });
        LutEditorWindow& editor = started.editor();
        editor.show();
        w.leave(editor);
        EXPECT_TRUE(started.kept().empty()) << "the ramp it was shown with is not kept";

        editor.show();
        editor.model().releaseOnGraph(40, MouseButton::Left);
        editor.setNoDataColor(0x123456);
        const LutTable changed = editor.model().rows().toTable();
        ASSERT_EQ(changed.size(), 3u);
        w.leave(editor);
        const std::vector<std::string> kept = started.kept();
        ASSERT_EQ(kept.size(), 1u);
        EXPECT_EQ(read(started.folder.path() / "myLuts" / "Recovered" / kept.front()),
                  LutFile::text(changed, 0x123456));
        const std::vector<std::size_t> ends{0, 1}; // unchanged, then changed
        EXPECT_EQ(keptAtEnd, w.ends ? ends : std::vector<std::size_t>{});
        EXPECT_TRUE(services.messages().empty());
        setProgramExitHandler(recorder);
    }
}

TEST(KeptRamps, AFolderThatCannotBeWrittenIsSkippedWithoutAWord) {
    testing::ServiceRecorder services;
    StartedEditor started;
    std::filesystem::create_directory(started.folder.path() / "myLuts");
    started.folder.write("myLuts/Recovered", "not a folder");
    LutEditorWindow& editor = started.editor();
    editor.show();
    editor.model().releaseOnGraph(40, MouseButton::Left);
    click(editor, "Cancel");
    EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(read(started.folder.path() / "myLuts" / "Recovered"), "not a folder");
}

TEST(KeptRamps, TheLibraryShowsTheRecoveredFolderLikeAnyOther) {
    testing::ServiceRecorder services;
    StartedEditor started;
    LutEditorWindow& editor = started.editor();
    editor.show();
    editor.model().releaseOnGraph(40, MouseButton::Left);
    click(editor, "Command1");
    ASSERT_EQ(started.kept().size(), 1u);

    testing::whenModalOpens<LUTBrowser>([&started](LUTBrowser& browser) {
        auto& folders = *browser.findChild<QListWidget*>("DirList");
        const auto recovered = folders.findItems("Recovered", Qt::MatchEndsWith);
        ASSERT_EQ(recovered.size(), 1);
        emit folders.itemActivated(recovered.front());
        auto& files = *browser.findChild<QListWidget*>("FileList");
        ASSERT_EQ(files.count(), 1);
        EXPECT_EQ(files.item(0)->text().toStdString(), started.kept().front());
        browser.reject();
    });
    click(editor, "OpenBrowser");
}

} // namespace
} // namespace huebase
