#include "browser/file_list.h"

#include <QDir>
#include <QSignalBlocker>

namespace huebase {

FileList::FileList(QWidget* parent) : QListWidget(parent) {
    setObjectName("FileList");
    setAccessibleName("Files");
    setUniformItemSizes(true);
}

void FileList::setPath(const QString& path) {
    path_ = path;
    const QSignalBlocker quiet(this);
    clear();
    const QDir dir(path);
    addItems(dir.entryList({pattern_}, QDir::Files, QDir::Name | QDir::IgnoreCase));
    setCurrentRow(-1);
}

void FileList::setPattern(const QString& pattern) {
    pattern_ = pattern;
    setPath(path_);
}

QStringList FileList::fileNames() const {
    QStringList names;
    for (int row = 0; row < count(); ++row)
        names << item(row)->text();
    return names;
}

QString FileList::filePath(int row) const {
    return QDir::toNativeSeparators(QDir(path_).filePath(item(row)->text()));
}

} // namespace huebase
