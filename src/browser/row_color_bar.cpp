#include "browser/row_color_bar.h"

#include "browser/color_bar_row_model.h"
#include "core/color_bar_columns.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace huebase {

RowColorBar::RowColorBar(const ColorBarRowModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    setObjectName("ColorBar");
    setAccessibleName("Colour bar");
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RowColorBar::refresh() {
    stale_ = true;
    update();
}

QSize RowColorBar::sizeHint() const {
    return {256, 22};
}

QSize RowColorBar::minimumSizeHint() const {
    return {64, 14};
}

void RowColorBar::resizeEvent(QResizeEvent* event) {
    stale_ = true;
    QWidget::resizeEvent(event);
}

// The bar's scale puts the lower bound at the left edge; bounds given the
// other way round turn it around.
void RowColorBar::render() {
    const int width = std::max(1, this->width());
    QImage columns(width, 1, QImage::Format_RGB32);
    columns.fill(palette().color(QPalette::Base));
    const auto scale = model_.barScale();
    if (scale && scale->first != scale->second) {
        const double left = scale->first;
        const double perPixel = (scale->second - left) / width;
        if (std::isfinite(perPixel))
            paintColumns({reinterpret_cast<std::uint32_t*>(columns.scanLine(0)),
                          static_cast<std::size_t>(width)},
                         model_.barSlices(),
                         {[=](double x) { return (x - left) / perPixel; }, perPixel < 0});
    }
    // Only a finished image is kept: should painting fail, the next paint
    // tries again rather than show half a bar.
    columns_ = columns;
    stale_ = false;
}

void RowColorBar::paintEvent(QPaintEvent*) {
    if (stale_ || columns_.width() != std::max(1, width()))
        render();
    QPainter painter(this);
    painter.drawImage(rect(), columns_);
}

void RowColorBar::mouseMoveEvent(QMouseEvent* event) {
    const double fraction = event->position().x() / std::max(1, width());
    const QString text = QString::fromStdString(model_.readoutText(fraction));
    setToolTip(text);
    if (isVisible())
        QToolTip::showText(event->globalPosition().toPoint(), text, this);
    QWidget::mouseMoveEvent(event);
}

} // namespace huebase
