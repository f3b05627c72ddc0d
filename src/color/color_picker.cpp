#include "color/color_picker.h"

#include "util/guarded.h"

#include "color/color_ref_dialog.h"
#include "color/qt_color.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace huebase {

ColorPicker::ColorPicker(QWidget* parent, ColorValue color) : QWidget(parent), color_(color) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName("Colour");
}

ColorPicker::~ColorPicker() = default;

void ColorPicker::setColor(ColorValue color) {
    color_ = color;
    update();
    emit Changed(color_);
}

void ColorPicker::UserControl_Click() {
    if (dialog_ == nullptr)
        dialog_ = new frmColorRef(this);
    dialog_->setColor(color_);
    dialog_->setCP(this);
    dialog_->exec();
}

QSize ColorPicker::sizeHint() const {
    return {48, 22};
}
QSize ColorPicker::minimumSizeHint() const {
    return {12, 12};
}

void ColorPicker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = rect().adjusted(0, 0, -1, -1);
    painter.fillRect(rect(), toQColor(color_));
    // A thin outline keeps a white or background-coloured swatch visible.
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(2, 2, -2, -2);
        option.backgroundColor = toQColor(color_);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ColorPicker::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

void ColorPicker::mouseReleaseEvent(QMouseEvent* event) {
    const bool click = pressed_ && event->button() == Qt::LeftButton &&
                       rect().contains(event->position().toPoint());
    pressed_ = false;
    event->accept();
    if (click)
        guard(this, [this] { UserControl_Click(); });
}

void ColorPicker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        guard(this, [this] { UserControl_Click(); });
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace huebase
