#pragma once

#include "browser/c_file_dialog.h"
#include "browser/lut_file.h"
#include "core/color_value.h"
#include "core/lut_node.h"

#include <functional>
#include <string>

class QWidget;

namespace huebase::LutLibrary {

// The editor's way into the library "myLuts" beside the program: its save
// button and its browse button each call one function here.

// The library folder: programFolder followed by "/myLuts".
std::string folderOf(const std::string& programFolder);
// Creates the library folder when it does not exist; true when it exists
// afterwards.
bool createFolder(const std::string& programFolder);

// The save dialog as cmdSave sets it up: initial folder the library, default
// extension "lut", title "Save your LUT", the .lut and all-files filters,
// filter index 0, Flags 12292 (hide read-only, file must exist, prompt to
// create) and names of up to 255 characters.
void prepareSaveDialog(CFileDialog& dialog, const std::string& programFolder);

// cmdSave: creates the library folder if missing, asks for a path with the
// save dialog (modal to owner) and, unless the user cancels, saves the
// table and no-data colour there with LutFile::LutSaveAs (which asks before
// overwriting). Cancelled when the dialog was cancelled.
LutFile::SaveResult saveAs(QWidget* owner, const std::string& programFolder, const LutTable& table,
                           ColorValue noDataColor);
// The same with the dialog given as a runner.
LutFile::SaveResult saveAs(const FileDialogRunner& runner, const std::string& programFolder,
                           const LutTable& table, ColorValue noDataColor);

using SelectionHandler = std::function<void(const LutTable& table, ColorValue noDataColor)>;

// OpenBrowser: shows the LUT browser modally over owner on the library,
// with rows fitted to [dataMin, dataMax], and returns when it closes. A
// row's Select hands its table and no-data colour to onSelected (the editor
// passes them to SetLutTable, then setNoDataColor) and closes the browser;
// Cancel hands over nothing.
void browse(QWidget* owner, const std::string& programFolder, float dataMin, float dataMax,
            const SelectionHandler& onSelected);

} // namespace huebase::LutLibrary
