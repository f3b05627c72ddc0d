#pragma once

#include <QListWidget>

namespace huebase {

// A file list: the names of the files of one folder that match a pattern
// ("*.lut" unless told otherwise, any letter case), sorted by name.
class FileList : public QListWidget {
    Q_OBJECT
public:
    explicit FileList(QWidget* parent = nullptr);

    QString path() const { return path_; }
    // Reads the folder again; no entry is current afterwards.
    void setPath(const QString& path);
    QString pattern() const { return pattern_; }
    void setPattern(const QString& pattern);

    QStringList fileNames() const;
    // The full path of the entry in row.
    QString filePath(int row) const;

private:
    QString path_;
    QString pattern_ = "*.lut";
};

} // namespace huebase
