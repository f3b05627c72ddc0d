#include "browser/qt_file_dialog_runner.h"

#include "util/messages.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace huebase {

namespace {

QString qtPattern(const std::string& pattern) {
    QString patterns = QString::fromStdString(pattern);
    patterns.replace(';', ' ');
#ifndef _WIN32
    QStringList each = patterns.split(' ', Qt::SkipEmptyParts);
    for (QString& one : each)
        if (one == "*.*")
            one = "*";
    patterns = each.join(' ');
#endif
    return patterns;
}

// Whether the chosen name may be taken, asking as the option bits say.
bool confirmChosen(const QString& path, const FileDialogRequest& request) {
    if (QFileInfo::exists(path))
        return true;
    const std::string shown = QDir::toNativeSeparators(path).toStdString();
    if (request.options.createPrompt)
        return showMessage(shown + "\nThis file does not exist.\nDo you want to create it?",
                           request.title, MessageIcon::Exclamation,
                           MessageButtons::YesNo) == MessageAnswer::Yes;
    if (request.options.fileMustExist && !request.open) {
        showMessage(shown + "\nFile not found.\nCheck the file name and try again.", request.title,
                    MessageIcon::Exclamation, MessageButtons::Ok);
        return false;
    }
    return true;
}

} // namespace

QStringList qtNameFilters(const std::vector<FileFilter>& filters) {
    QStringList names;
    for (const FileFilter& filter : filters) {
        QString description = QString::fromStdString(filter.description);
        const QString ownPatterns = " (" + QString::fromStdString(filter.pattern) + ")";
        if (description.endsWith(ownPatterns))
            description.chop(ownPatterns.size());
        const QString patterns = qtPattern(filter.pattern);
        names << (patterns.isEmpty() ? description : description + " (" + patterns + ")");
    }
    return names;
}

void applyFileDialogRequest(QFileDialog& dialog, const FileDialogRequest& request) {
    dialog.setAcceptMode(request.open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(request.open && request.options.fileMustExist &&
                               !request.options.createPrompt
                           ? QFileDialog::ExistingFile
                           : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.options.overwritePrompt);
    dialog.setWindowTitle(QString::fromStdString(request.title));
    if (!request.initialDir.empty())
        dialog.setDirectory(QString::fromStdString(request.initialDir));
    dialog.setDefaultSuffix(QString::fromStdString(request.defaultExt));
    const QStringList filters = qtNameFilters(request.filters);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(static_cast<int>(request.selectedFilter)));
    }
    if (!request.fileName.empty())
        dialog.selectFile(QString::fromStdString(request.fileName));
}

FileDialogRunner qtFileDialogRunner(QWidget* owner) {
    QPointer<QWidget> guardedOwner(owner);
    return [guardedOwner](const FileDialogRequest& request) -> std::optional<std::string> {
        QFileDialog dialog(guardedOwner.data());
        dialog.setObjectName("CFileDialog");
        applyFileDialogRequest(dialog, request);
        while (dialog.exec() == QDialog::Accepted) {
            const QStringList chosen = dialog.selectedFiles();
            if (chosen.isEmpty())
                return std::nullopt;
            const QString path = QDir::toNativeSeparators(chosen.front());
            if (confirmChosen(path, request))
                return path.toStdString();
            dialog.selectFile(QFileInfo(path).fileName());
        }
        return std::nullopt;
    };
}

} // namespace huebase
