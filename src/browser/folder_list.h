#pragma once

#include <QListWidget>

namespace huebase {

// A folder list: the folders from the root down to the current one, then
// the current folder's subfolders, each indented by its depth. Double-click
// or Enter on an entry makes it the current folder.
class FolderList : public QListWidget {
    Q_OBJECT
public:
    explicit FolderList(QWidget* parent = nullptr);

    QString path() const { return path_; }
    // Shows path (made absolute) and raises pathChanged, even when it is the
    // current one, so that a dependent list reads the folder again.
    void setPath(const QString& path);

signals:
    void pathChanged(const QString& path);

private:
    QString path_;
};

} // namespace huebase
