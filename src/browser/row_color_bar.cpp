#include "browser/row_color_bar.h"

#include "browser/color_bar_row_model.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace huebase {

namespace {
QRgb toRgb(ColorValue color) {
    return qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}
} // namespace

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

// One pass over the slices: each slice overwrites the columns whose centres
// it holds, so later slices win as they do when the boxes are painted in
// order.
void RowColorBar::render() {
    const int width = std::max(1, this->width());
    QImage columns(width, 1, QImage::Format_RGB32);
    columns.fill(palette().color(QPalette::Base));
    const auto scale = model_.barScale();
    if (scale && scale->first != scale->second)
        paintSlices(columns, scale->first, scale->second);
    // Only a finished image is kept: should painting fail, the next paint
    // tries again rather than show half a bar.
    columns_ = columns;
    stale_ = false;
}

void RowColorBar::paintSlices(QImage& columns, double left, double right) const {
    const int width = columns.width();
    const double perPixel = (right - left) / width;
    if (!std::isfinite(perPixel))
        return;
    auto* line = reinterpret_cast<QRgb*>(columns.scanLine(0));
    for (const BarSlice& slice : model_.barSlices()) {
        // Columns c whose centre left + (c + 0.5) * perPixel lies in [x0, x1),
        // clamped before they become integers.
        double from = (slice.x0 - left) / perPixel - 0.5;
        double to = (slice.x1 - left) / perPixel - 0.5;
        if (perPixel < 0)
            std::swap(from, to);
        if (!(from < width && to > 0))
            continue;
        const int first = std::max(0, static_cast<int>(std::ceil(std::max(from, -1.0))));
        const int last =
            std::min(width - 1, static_cast<int>(std::ceil(std::min(to, double(width)))) - 1);
        const QRgb color = toRgb(slice.color);
        for (int c = first; c <= last; ++c)
            line[c] = color;
    }
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
