#include "browser/lut_library.h"

#include "browser/lut_browser.h"
#include "browser/qt_file_dialog_runner.h"
#include "util/misc_files.h"
#include "util/utf8_path.h"

#include <filesystem>
#include <system_error>

namespace huebase::LutLibrary {

namespace {
constexpr std::int32_t kSaveFlags = FlagHideReadOnly | FlagFileMustExist | FlagCreatePrompt;
} // namespace

std::string folderOf(const std::string& programFolder) {
    return programFolder + "/myLuts";
}

bool createFolder(const std::string& programFolder) {
    const std::string folder = folderOf(programFolder);
    if (!MiscFiles::DirExists(folder)) {
        std::error_code ignored;
        std::filesystem::create_directories(pathFromUtf8(folder), ignored);
    }
    return MiscFiles::DirExists(folder);
}

void prepareSaveDialog(CFileDialog& dialog, const std::string& programFolder) {
    dialog.InitialDir = folderOf(programFolder);
    dialog.DefaultExt = "lut";
    dialog.DialogTitle = "Save your LUT";
    dialog.Filter = "Lut files (*.lut)|*.lut|All Files (*.*)|*.*";
    dialog.FilterIndex = 0;
    dialog.Flags = kSaveFlags;
    dialog.MaxFileSize = 255;
}

LutFile::SaveResult saveAs(const FileDialogRunner& runner, const std::string& programFolder,
                           const LutTable& table, ColorValue noDataColor) {
    createFolder(programFolder);
    CFileDialog dialog(runner);
    prepareSaveDialog(dialog, programFolder);
    if (!dialog.Show(false))
        return LutFile::SaveResult::Cancelled;
    return LutFile::LutSaveAs(dialog.FileName, table, noDataColor);
}

LutFile::SaveResult saveAs(QWidget* owner, const std::string& programFolder, const LutTable& table,
                           ColorValue noDataColor) {
    return saveAs(qtFileDialogRunner(owner), programFolder, table, noDataColor);
}

void browse(QWidget* owner, const std::string& programFolder, float dataMin, float dataMax,
            const SelectionHandler& onSelected) {
    LUTBrowser browser(owner);
    browser.setDataMin(dataMin);
    browser.setDataMax(dataMax);
    browser.loadLibrary(programFolder);
    QObject::connect(&browser, &LUTBrowser::Selected,
                     [&onSelected](const LutTable& table, ColorValue noDataColor) {
                         if (onSelected)
                             onSelected(table, noDataColor);
                     });
    browser.exec();
}

} // namespace huebase::LutLibrary
