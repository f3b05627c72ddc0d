#include "app/first_paint_stamp.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace huebase {

FirstPaintStamp::FirstPaintStamp(QString windowName, std::FILE* out, QObject* parent)
    : QObject(parent), windowName_(std::move(windowName)), out_(out) {}

bool FirstPaintStamp::eventFilter(QObject* watched, QEvent* event) {
    if (!seen_ && event->type() == QEvent::Paint) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget->isWindow() && widget->objectName() == windowName_) {
            seen_ = true;
            // The window's paint event comes first in the backing store's
            // sync; a zero timer runs once its children are painted and the
            // result flushed to the window system.
            QTimer::singleShot(0, this, [this] {
                const auto now = std::chrono::steady_clock::now().time_since_epoch();
                std::fprintf(
                    out_, "painted %s %lld\n", windowName_.toUtf8().constData(),
                    static_cast<long long>(
                        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
                std::fflush(out_);
            });
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace huebase
