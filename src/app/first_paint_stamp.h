#pragma once

#include <QObject>

#include <cstdio>

namespace huebase {

// Writes one line "painted <name> <ns>" to a stream once the top-level window
// with the given objectName has been painted and its paint handed to the
// window system; ns is std::chrono::steady_clock's count, so another process
// on the same machine can take the time from its own start. Installed on the
// application only when a start-up measurement asks for it.
class FirstPaintStamp : public QObject {
    Q_OBJECT
public:
    FirstPaintStamp(QString windowName, std::FILE* out, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString windowName_;
    std::FILE* out_;
    bool seen_ = false;
};

} // namespace huebase
