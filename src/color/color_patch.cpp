#include "color/color_patch.h"

#include "color/qt_color.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace huebase {

ColorPatch::ColorPatch(QWidget* parent) : QLabel(parent) {
    setAutoFillBackground(true);
    setAlignment(Qt::AlignCenter);
    setColor(0);
}

void ColorPatch::setColor(ColorValue color) {
    color_ = color;
    QPalette pal = palette();
    pal.setColor(QPalette::Window, toQColor(color));
    setPalette(pal);
}

void ColorPatch::setTextColor(ColorValue color) {
    QPalette pal = palette();
    pal.setColor(QPalette::WindowText, toQColor(color));
    setPalette(pal);
}

void ColorPatch::mousePressEvent(QMouseEvent* event) {
    emit pressed(event->position().toPoint());
    event->accept();
}

void ColorPatch::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit pressed(rect().center());
        return;
    default:
        QLabel::keyPressEvent(event);
    }
}

} // namespace huebase
