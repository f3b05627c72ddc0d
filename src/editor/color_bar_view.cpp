#include "editor/color_bar_view.h"

#include "color/qt_color.h"
#include "editor/lut_editor_model.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace huebase {

ColorBarView::ColorBarView(LutEditorModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    setObjectName("ColorBar");
    setAccessibleName("Colour ramp");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumHeight(18);
    model_.addListener(this);
}

ColorBarView::~ColorBarView() {
    model_.removeListener(this);
}

QColor ColorBarView::background() {
    return {96, 100, 106};
}

QSize ColorBarView::sizeHint() const {
    return {600, 28};
}

void ColorBarView::colorBarPainted() {
    stale_ = true;
    update();
}

void ColorBarView::graphPrepared() {
    stale_ = true;
    update();
}

void ColorBarView::resizeEvent(QResizeEvent*) {
    stale_ = true;
}

void ColorBarView::render() {
    const int w = std::max(1, width());
    columns_ = QImage(w, 1, QImage::Format_RGB32);
    columns_.fill(background());
    auto* line = reinterpret_cast<QRgb*>(columns_.scanLine(0));
    const GraphCoordinates& c = model_.graphCoordinates();
    for (const ColorSlice& slice : model_.colorBar().slices()) {
        // Columns whose centre c + 0.5 lies in [x0, x1).
        const double p0 = c.xToPixel(slice.x0, w) - 0.5;
        const double p1 = c.xToPixel(slice.x1, w) - 0.5;
        const double first = std::max(0.0, std::ceil(p0));
        const double end = std::min(static_cast<double>(w), std::ceil(p1));
        if (!(first < end))
            continue;
        std::fill(line + static_cast<int>(first), line + static_cast<int>(end),
                  toQColor(slice.color).rgb());
    }
    stale_ = false;
}

void ColorBarView::paintEvent(QPaintEvent*) {
    if (stale_ || columns_.width() != std::max(1, width()))
        render();
    QPainter painter(this);
    painter.drawImage(rect(), columns_);
}

} // namespace huebase
