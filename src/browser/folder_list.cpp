#include "browser/folder_list.h"

#include "util/guarded.h"

#include <QDir>
#include <QFileIconProvider>

namespace huebase {

FolderList::FolderList(QWidget* parent) : QListWidget(parent) {
    setObjectName("DirList");
    setAccessibleName("Folders");
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemActivated, this, guarded(this, [this](QListWidgetItem* item) {
                setPath(item->data(Qt::UserRole).toString());
            }));
}

void FolderList::setPath(const QString& path) {
    QDir dir(path);
    path_ = QDir::cleanPath(dir.absolutePath());
    dir.setPath(path_);

    QStringList chain;
    for (QDir up = dir;;) {
        chain.prepend(up.absolutePath());
        if (!up.cdUp())
            break;
    }
    const QFileIconProvider icons;
    const QIcon folderIcon = icons.icon(QFileIconProvider::Folder);
    clear();
    const QString indentUnit = "   ";
    int depth = 0;
    for (const QString& folder : chain) {
        const QString name =
            folder == chain.front() ? QDir::toNativeSeparators(folder) : QDir(folder).dirName();
        auto* item = new QListWidgetItem(folderIcon, indentUnit.repeated(depth) + name, this);
        item->setData(Qt::UserRole, folder);
        item->setToolTip(QDir::toNativeSeparators(folder));
        ++depth;
    }
    const int current = count() - 1;
    const QStringList subfolders =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString& name : subfolders) {
        const QString folder = dir.filePath(name);
        auto* item = new QListWidgetItem(folderIcon, indentUnit.repeated(depth) + name, this);
        item->setData(Qt::UserRole, folder);
        item->setToolTip(QDir::toNativeSeparators(folder));
    }
    if (current >= 0) {
        QFont bold = font();
        bold.setBold(true);
        item(current)->setFont(bold);
        setCurrentRow(current);
        scrollToItem(item(current));
    }
    emit pathChanged(path_);
}

} // namespace huebase
