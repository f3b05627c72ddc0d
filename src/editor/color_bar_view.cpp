#include "editor/color_bar_view.h"

#include "core/color_bar_columns.h"
#include "editor/lut_editor_model.h"

#include <QPainter>

#include <algorithm>
#include <cstdint>

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
    const GraphCoordinates& c = model_.graphCoordinates();
    paintColumns(
        {reinterpret_cast<std::uint32_t*>(columns_.scanLine(0)), static_cast<std::size_t>(w)},
        model_.colorBar().slices(), {[&](double x) { return c.xToPixel(x, w); }});
    stale_ = false;
}

void ColorBarView::paintEvent(QPaintEvent*) {
    if (stale_ || columns_.width() != std::max(1, width()))
        render();
    QPainter painter(this);
    painter.drawImage(rect(), columns_);
}

} // namespace huebase
