#pragma once

#include "browser/c_file_dialog.h"

#include <QStringList>

class QFileDialog;
class QWidget;

namespace huebase {

// CFileDialog's dialog on Qt: a QFileDialog modal to its owner.

// The request's filters as Qt name filters, "description (patterns)". A
// description that already ends with its patterns in brackets keeps them;
// elsewhere than on Windows "*.*" becomes "*", which also matches names
// without a dot.
QStringList qtNameFilters(const std::vector<FileFilter>& filters);

// Sets the dialog up from the request: open or save, title, initial folder,
// proposed name, default suffix, filters with the selected one, and the
// option bits (without the overwrite prompt bit a save dialog does not ask
// about existing files; file-must-exist alone limits an open dialog to
// existing files; Qt has no read-only box to hide).
void applyFileDialogRequest(QFileDialog& dialog, const FileDialogRequest& request);

// Shows the dialog modal to owner. With the create-prompt bit, a name that
// does not exist asks "<path> This file does not exist. Create the file?"
// (Yes returns it, No shows the dialog again); with file-must-exist and
// without it, such a name shows "File not found." and the dialog again.
FileDialogRunner qtFileDialogRunner(QWidget* owner);

} // namespace huebase
