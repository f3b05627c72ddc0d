#include "browser/lut_library.h"
#include "browser/qt_file_dialog_runner.h"

#include "browser/lut_test_support.h"
#include "support/modal_window.h"
#include "support/service_recorder.h"

#include <QFileDialog>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <filesystem>

namespace huebase {
namespace {

using testing::contentsOf;
using testing::whenModalOpens;

// Types a name into the dialog's name box, as a user does (selectFile leaves
// the box alone while it has the focus), and confirms.
void typeFileNameAndAccept(QFileDialog& dialog, const QString& name) {
    auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(box, nullptr);
    box->setText(name);
    static_cast<QDialog&>(dialog).accept();
}

const LutTable kTable = testing::tableAt({-1500, 0, 2500});
constexpr ColorValue kNoData = 0xFF0000;

// A program folder without a library.
class SaveTest : public ::testing::Test {
protected:
    std::string programFolder() const { return program.path().string(); }
    std::string library() const { return LutLibrary::folderOf(programFolder()); }

    testing::ScratchFolder program;
    testing::ServiceRecorder services;
};

TEST_F(SaveTest, TheSaveDialogIsSetUpOnTheLibraryAndCancellingWritesNothing) {
    CFileDialog dialog;
    LutLibrary::prepareSaveDialog(dialog, programFolder());
    EXPECT_EQ(dialog.InitialDir, library());
    EXPECT_EQ(dialog.DefaultExt, "lut");
    EXPECT_EQ(dialog.DialogTitle, "Save your LUT");
    EXPECT_EQ(dialog.Filter, "Lut files (*.lut)|*.lut|All Files (*.*)|*.*");
    EXPECT_EQ(dialog.FilterIndex, 0);
    EXPECT_EQ(dialog.Flags, 12292);
    EXPECT_EQ(dialog.MaxFileSize, 255);

    auto cancel = [](const FileDialogRequest&) { return std::optional<std::string>(); };
    EXPECT_EQ(LutLibrary::saveAs(cancel, programFolder(), kTable, kNoData),
              LutFile::SaveResult::Cancelled);
    EXPECT_TRUE(std::filesystem::is_empty(library())) << "created, and nothing written";
}

TEST_F(SaveTest, TheQtDialogSavesANewNameAfterTheCreateQuestion) {
    services.queueAnswer(MessageAnswer::Yes);
    QString shownFolder;
    QString shownTitle;
    whenModalOpens<QFileDialog>([&](QFileDialog& dialog) {
        shownFolder = dialog.directory().absolutePath();
        shownTitle = dialog.windowTitle();
        typeFileNameAndAccept(dialog, "coast");
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

TEST(QtFileDialog, TakesTheRequestsFoldersFiltersAndOptions) {
    CFileDialog properties;
    properties.DefaultExt = "lut";
    properties.Filter = "Lut files (*.lut)|*.lut|Text|*.txt;*.csv|All Files (*.*)|*.*";
    properties.FilterIndex = 3;
    properties.Flags = FlagHideReadOnly | FlagFileMustExist | FlagCreatePrompt;
    QFileDialog dialog;
    applyFileDialogRequest(dialog, properties.request(false));
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    EXPECT_EQ(dialog.defaultSuffix(), "lut");
    // "All files" must match names without a dot where names need none.
    const QString all = QDir::separator() == '\\' ? "All Files (*.*)" : "All Files (*)";
    EXPECT_EQ(dialog.nameFilters(), (QStringList{"Lut files (*.lut)", "Text (*.txt *.csv)", all}));
    EXPECT_EQ(dialog.selectedNameFilter(), all);

    properties.Flags = FlagOverwritePrompt | FlagFileMustExist;
    applyFileDialogRequest(dialog, properties.request(true));
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
}

TEST(QtFileDialog, DecliningToCreateShowsTheDialogAgain) {
    testing::ScratchFolder folder;
    testing::ServiceRecorder services;
    services.queueAnswer(MessageAnswer::No);
    int shown = 0;
    whenModalOpens<QFileDialog>([&](QFileDialog& dialog) {
        ++shown;
        whenModalOpens<QFileDialog>([&](QFileDialog& again) {
            ++shown;
            again.reject();
        });
        typeFileNameAndAccept(dialog, "absent.lut");
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
