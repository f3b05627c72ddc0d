#include "editor/distribution_graph.h"

#include "color/qt_color.h"
#include "core/color_bar_columns.h"
#include "editor/axis_ticks.h"
#include "editor/graph_readout.h"
#include "editor/lut_editor_model.h"
#include "editor/reporting_errors.h"
#include "util/vb_format.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace huebase {

namespace {
// A mid grey on which both the white line and the black points stand out.
const QColor kBackground(148, 156, 166);
const QColor kBaseline(128, 136, 146);
const QColor kScaleText(44, 50, 58);
} // namespace

DistributionGraph::DistributionGraph(LutEditorModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    setObjectName("Graph");
    setAccessibleName("Distribution graph");
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(240, 120);
    setCursor(Qt::CrossCursor);
    model_.addListener(this);
}

DistributionGraph::~DistributionGraph() {
    model_.removeListener(this);
}

QSize DistributionGraph::sizeHint() const {
    return {600, 300};
}

GraphCoordinates DistributionGraph::coordinates() const {
    return model_.graphCoordinates().onScale(scale_, model_.MaxCount());
}

// A point whose height is already measured on the count scale.
QPointF DistributionGraph::toPixel(double x, double height) const {
    const GraphCoordinates c = coordinates();
    return {c.xToPixel(x, width()), c.yToPixel(height, this->height())};
}

QPointF DistributionGraph::pointAt(double x, double y) const {
    return toPixel(x, scale_.toAxis(y));
}

double DistributionGraph::valueAt(double pixelX) const {
    return model_.graphCoordinates().pixelToX(pixelX, width());
}

double DistributionGraph::countAt(double pixelY) const {
    return scale_.toCount(coordinates().pixelToY(pixelY, height()));
}

void DistributionGraph::setCountScale(CountScale scale) {
    if (scale == scale_)
        return;
    scale_ = scale;
    setToolTip({});
    stale_ = true;
    update();
    emit countAxisChanged();
}

void DistributionGraph::setRampFill(bool on) {
    if (on == rampFill_)
        return;
    rampFill_ = on;
    stale_ = true;
    update();
}

std::vector<double> DistributionGraph::countTicks() const {
    return scale_.ticks(model_.MaxCount(), std::max(2, height() / 40));
}

MouseButton DistributionGraph::buttonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    default:
        return MouseButton::Middle;
    }
}

void DistributionGraph::graphPrepared() {
    stale_ = true;
    update();
    emit countAxisChanged();
}

void DistributionGraph::colorBarPainted() {
    if (!rampFill_)
        return;
    stale_ = true;
    update();
}

void DistributionGraph::resizeEvent(QResizeEvent*) {
    stale_ = true;
}

void DistributionGraph::render() {
    const qreal ratio = devicePixelRatioF();
    image_ = QImage(size() * ratio, QImage::Format_RGB32);
    image_.setDevicePixelRatio(ratio);
    image_.fill(kBackground);
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing);

    // The linear scale draws the model's own curve; the others measure the
    // same rows anew.
    const DistributionCurve scaled =
        scale_.linear() ? DistributionCurve()
                        : DistributionCurve(model_.distribution().shownRows(), scale_);
    const DistributionCurve& curve = scale_.linear() ? model_.curve() : scaled;

    // The zero count line, so the curve's foot reads as a baseline.
    const double zero = pointAt(0, 0).y();
    if (rampFill_)
        fillWithRamp(painter, curve, zero);
    painter.setPen(QPen(kBaseline, 1));
    painter.drawLine(QPointF(0, zero), QPointF(width(), zero));

    drawValueScale(painter, zero);

    std::vector<QLineF> lines;
    lines.reserve(curve.lines().size());
    for (const CurveSegment& s : curve.lines())
        lines.emplace_back(toPixel(s.from.x, s.from.y), toPixel(s.to.x, s.to.y));
    painter.setPen(QPen(toQColor(DistributionCurve::kLineColor), DistributionCurve::kLineWidth));
    painter.drawLines(lines.data(), static_cast<int>(lines.size()));

    std::vector<QPointF> points;
    points.reserve(curve.points().size());
    for (const CurvePoint& p : curve.points())
        points.push_back(toPixel(p.x, p.y));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(toQColor(DistributionCurve::kPointColor), DistributionCurve::kPointWidth,
                        Qt::SolidLine, Qt::SquareCap));
    painter.drawPoints(points.data(), static_cast<int>(points.size()));
    stale_ = false;
}

// Each pixel column between the baseline and the curve takes the colour the
// ramp gives the value at the column's centre, as the colour bar paints it.
void DistributionGraph::fillWithRamp(QPainter& painter, const DistributionCurve& curve,
                                     double zero) const {
    const int w = width();
    std::vector<std::uint32_t> line(static_cast<std::size_t>(std::max(w, 0)), 0u);
    const GraphCoordinates& c = model_.graphCoordinates();
    paintColumns(line, model_.colorBar().slices(), {[&](double x) { return c.xToPixel(x, w); }});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int column = 0; column < w; ++column) {
        const std::uint32_t pixel = line[static_cast<std::size_t>(column)];
        const std::optional<double> height = curve.heightAt(valueAt(column + 0.5));
        if (pixel == 0u || !height)
            continue;
        const double top = toPixel(0, *height).y();
        painter.fillRect(QRectF(column, std::min(top, zero), 1, std::fabs(zero - top)),
                         QColor::fromRgb(pixel));
    }
    painter.restore();
}

// Round values along the zero line, labelled in the space under it, so the
// curve can be read against the data's own units.
void DistributionGraph::drawValueScale(QPainter& painter, double zero) const {
    const double lo = model_.DataMin();
    const double hi = model_.DataMax();
    const int wanted = std::max(2, width() / 90);
    painter.setFont(font());
    const int textHeight = painter.fontMetrics().height();
    for (const double value : axisTicks(lo, hi, wanted)) {
        const double x = pointAt(value, 0).x();
        painter.setPen(QPen(kScaleText, 1));
        painter.drawLine(QPointF(x, zero), QPointF(x, zero + 4));
        const QString text = QString::fromStdString(floatText(static_cast<float>(value)));
        const QRectF box(x - 45, zero + 5, 90, textHeight);
        if (box.bottom() <= height())
            painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop, text);
    }
}

void DistributionGraph::paintEvent(QPaintEvent*) {
    if (stale_ || image_.size() != size() * devicePixelRatioF())
        render();
    QPainter(this).drawImage(0, 0, image_);
}

void DistributionGraph::mouseMoveEvent(QMouseEvent* event) {
    const double x = valueAt(event->position().x());
    const double y = countAt(event->position().y());
    emit pointerValue(QString::fromStdString(GraphReadout::xText(x)));
    const std::string tip =
        scale_.linear() ? GraphReadout::toolTip(x, y)
                        : GraphReadout::nearestCountToolTip(model_.distribution().shownRows(), x);
    setToolTip(QString::fromStdString(tip));
    reportingErrors([&] { model_.moveOnGraph(static_cast<float>(x)); });
}

void DistributionGraph::mouseReleaseEvent(QMouseEvent* event) {
    const double x = valueAt(event->position().x());
    reportingErrors(
        [&] { model_.releaseOnGraph(static_cast<float>(x), buttonOf(event->button())); });
}

} // namespace huebase
