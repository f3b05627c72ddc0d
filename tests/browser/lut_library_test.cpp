#include "browser/color_bar_row.h"
#include "browser/lut_library.h"
#include "browser/qt_file_dialog_runner.h"
#include "util/misc_files.h"

#include "browser/widget_test_support.h"
#include "support/service_recorder.h"

#include <QFileDialog>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace huebase {
namespace {

using testing::ScratchFolder;
using testing::ServiceRecorder;
using testing::tableAt;
using testing::whenModalOpens;

std::string contentsOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// Types a name into the dialog's name box, as a user does. (selectFile
// leaves the box alone while it has the focus.)
void typeFileName(QFileDialog& dialog, const QString& name) {
    auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(box, nullptr);
    box->setText(name);
}

const LutTable kTable = tableAt({-1500, 0, 2500}, {0xFF0000, 0xFFFFFF, 0x00FF00});
constexpr ColorValue kNoData = 0xFF0000;

// A program folder without a library, and a fake dialog that records its
// request and answers with the queued path.
class SaveTest : public ::testing::Test {
protected:
    FileDialogRunner fakeDialog() {
        return [this](const FileDialogRequest& request) -> std::optional<std::string> {
            requests.push_back(request);
            return answer;
        };
    }
    std::string programFolder() const { return program.path().string(); }
    std::string library() const { return LutLibrary::folderOf(programFolder()); }

    ScratchFolder program;
    ServiceRecorder services;
    std::vector<FileDialogRequest> requests;
    std::optional<std::string> answer;
};

// --- The save button's path ------------------------------------------------------------

TEST_F(SaveTest, CreatesTheLibraryAndAsksWithTheSaveDialogSetUpForIt) {
    ASSERT_FALSE(MiscFiles::DirExists(library()));
    EXPECT_EQ(LutLibrary::saveAs(fakeDialog(), programFolder(), kTable, kNoData),
              LutFile::SaveResult::Cancelled);
    EXPECT_TRUE(MiscFiles::DirExists(library()));
    EXPECT_TRUE(std::filesystem::is_empty(library())) << "a cancelled dialog writes nothing";
    ASSERT_EQ(requests.size(), 1u);
    const FileDialogRequest& r = requests[0];
    EXPECT_FALSE(r.open);
    EXPECT_EQ(r.initialDir, library());
    EXPECT_EQ(r.defaultExt, "lut");
    EXPECT_EQ(r.title, "Save your LUT");
    EXPECT_EQ(r.filters, (std::vector<FileFilter>{{"Lut files (*.lut)", "*.lut"},
                                                  {"All Files (*.*)", "*.*"}}));
    EXPECT_EQ(r.selectedFilter, 0u);
    EXPECT_EQ(r.options, (FileDialogOptions{.overwritePrompt = false,
                                            .hideReadOnly = true,
                                            .fileMustExist = true,
                                            .createPrompt = true}));
    CFileDialog dialog;
    LutLibrary::prepareSaveDialog(dialog, programFolder());
    EXPECT_EQ(dialog.Flags, 12292);
    EXPECT_EQ(dialog.FilterIndex, 0);
    EXPECT_EQ(dialog.MaxFileSize, 255);
}

TEST_F(SaveTest, TheChosenPathIsWrittenAndReadsBackIntoARow) {
    answer = library() + "/mine.lut";
    EXPECT_EQ(LutLibrary::saveAs(fakeDialog(), programFolder(), kTable, kNoData),
              LutFile::SaveResult::Saved);
    EXPECT_EQ(contentsOf(*answer), LutFile::text(kTable, kNoData));

    ColorBarRow row;
    row.setFilePath(QString::fromStdString(*answer));
    EXPECT_EQ(toTable(row.lut()), kTable);
    EXPECT_EQ(row.noDataColor(), kNoData);
    EXPECT_TRUE(services.messages().empty());
}

TEST_F(SaveTest, AnExistingFileIsReplacedOnlyAfterTheOverwriteQuestion) {
    std::filesystem::create_directory(library());
    answer = library() + "/old.lut";
    std::ofstream(*answer, std::ios::binary) << "old contents";

    services.queueAnswer(MessageAnswer::Cancel);
    EXPECT_EQ(LutLibrary::saveAs(fakeDialog(), programFolder(), kTable, kNoData),
              LutFile::SaveResult::Cancelled);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Overwrite " + *answer + " ?");
    EXPECT_EQ(services.messages()[0].title, "File exists ...");
    EXPECT_EQ(services.messages()[0].buttons, MessageButtons::OkCancel);
    EXPECT_EQ(contentsOf(*answer), "old contents");

    services.queueAnswer(MessageAnswer::Ok);
    EXPECT_EQ(LutLibrary::saveAs(fakeDialog(), programFolder(), kTable, kNoData),
              LutFile::SaveResult::Saved);
    EXPECT_EQ(contentsOf(*answer), LutFile::text(kTable, kNoData));
}

TEST_F(SaveTest, TheQtDialogSavesANewNameAfterTheCreateQuestion) {
    services.queueAnswer(MessageAnswer::Yes);
    QString shownFolder;
    QString shownTitle;
    whenModalOpens<QFileDialog>([&](QFileDialog& dialog) {
        shownFolder = dialog.directory().absolutePath();
        shownTitle = dialog.windowTitle();
        typeFileName(dialog, "coast");
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(LutLibrary::saveAs(static_cast<QWidget*>(nullptr), programFolder(), kTable, kNoData),
              LutFile::SaveResult::Saved);
    EXPECT_EQ(shownFolder, QDir(QString::fromStdString(library())).absolutePath());
    EXPECT_EQ(shownTitle, "Save your LUT");
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].buttons, MessageButtons::YesNo);
    EXPECT_NE(services.messages()[0].text.find("coast.lut"), std::string::npos);
    EXPECT_EQ(contentsOf(library() + "/coast.lut"), LutFile::text(kTable, kNoData));
}

// --- The Qt dialog behind CFileDialog -----------------------------------------------------

TEST(QtFileDialog, TakesTheRequestsFoldersFiltersAndOptions) {
    CFileDialog properties;
    properties.InitialDir = QDir::tempPath().toStdString();
    properties.DialogTitle = "Pick";
    properties.DefaultExt = "lut";
    properties.Filter = "Lut files (*.lut)|*.lut|All Files (*.*)|*.*";
    properties.FilterIndex = 2;
    properties.Flags = FlagHideReadOnly | FlagFileMustExist | FlagCreatePrompt;
    QFileDialog dialog;
    applyFileDialogRequest(dialog, properties.request(false));
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    EXPECT_EQ(dialog.windowTitle(), "Pick");
    EXPECT_EQ(dialog.directory().absolutePath(), QDir::temp().absolutePath());
    EXPECT_EQ(dialog.defaultSuffix(), "lut");
    ASSERT_EQ(dialog.nameFilters().size(), 2);
    EXPECT_EQ(dialog.nameFilters()[0], "Lut files (*.lut)");
    EXPECT_EQ(dialog.selectedNameFilter(), dialog.nameFilters()[1]);

    properties.Flags = FlagOverwritePrompt | FlagFileMustExist;
    applyFileDialogRequest(dialog, properties.request(true));
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
}

TEST(QtFileDialog, AllFilesMatchNamesWithoutADotWhereNamesNeedNone) {
    const QStringList filters =
        qtNameFilters({{"All Files (*.*)", "*.*"}, {"Text", "*.txt;*.csv"}});
#ifdef _WIN32
    EXPECT_EQ(filters[0], "All Files (*.*)");
#else
    EXPECT_EQ(filters[0], "All Files (*)");
#endif
    EXPECT_EQ(filters[1], "Text (*.txt *.csv)");
}

TEST(QtFileDialog, DecliningToCreateShowsTheDialogAgain) {
    ScratchFolder folder;
    ServiceRecorder services;
    services.queueAnswer(MessageAnswer::No);
    int shown = 0;
    whenModalOpens<QFileDialog>([&](QFileDialog& dialog) {
        ++shown;
        whenModalOpens<QFileDialog>([&](QFileDialog& again) {
            ++shown;
            again.reject();
        });
        typeFileName(dialog, "absent.lut");
        static_cast<QDialog&>(dialog).accept();
    });
    CFileDialog properties(qtFileDialogRunner(nullptr));
    properties.InitialDir = folder.path().string();
    properties.Flags = FlagCreatePrompt;
    properties.FileName = "kept";
    EXPECT_FALSE(properties.Show(false));
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(properties.FileName, "kept");
}

} // namespace
} // namespace huebase
