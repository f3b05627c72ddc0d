#include "color/qt_screen_pixels.h"

#include "color/qt_color.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

namespace huebase {

ScreenPoint QtScreenPixels::pointerPosition() const {
    const QPoint p = QCursor::pos();
    return {p.x(), p.y()};
}

ScreenRect QtScreenPixels::screenGeometry() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return {};
    const QRect g = screen->geometry();
    return {g.left(), g.top(), g.left() + g.width(), g.top() + g.height()};
}

ColorValue QtScreenPixels::pixelAt(ScreenPoint point) const {
    const QPoint p(point.x, point.y);
    QScreen* screen = QGuiApplication::screenAt(p);
    if (screen == nullptr)
        return 0;
    // Window 0 is the whole screen; the grab is given in the screen's own coordinates.
    const QPoint local = p - screen->geometry().topLeft();
    const QImage pixel = screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage();
    if (pixel.isNull())
        return 0;
    return fromQColor(pixel.pixelColor(0, 0));
}

} // namespace huebase
