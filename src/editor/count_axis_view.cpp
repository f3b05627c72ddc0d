#include "editor/count_axis_view.h"

#include "editor/count_scale.h"
#include "editor/distribution_graph.h"

#include <QPainter>

namespace huebase {

namespace {
constexpr int kTick = 4;
constexpr int kGap = 3;
} // namespace

CountAxisView::CountAxisView(const DistributionGraph& graph, QWidget* parent)
    : QWidget(parent), graph_(graph) {
    setObjectName("CountAxis");
    setAccessibleName("Count axis");
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    // Labels are at most three digits and a unit, or four digits.
    setFixedWidth(fontMetrics().horizontalAdvance("8.88M") + kTick + 2 * kGap);
    connect(&graph, &DistributionGraph::countAxisChanged, this, [this] { update(); });
}

QSize CountAxisView::sizeHint() const {
    return {width(), graph_.sizeHint().height()};
}

void CountAxisView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const int right = width() - 1;
    painter.drawLine(right, 0, right, height());
    const int textHeight = fontMetrics().height();
    // Labels go up from the baseline; one that would touch the last drawn
    // label or leave the widget keeps only its tick.
    double freeAbove = height();
    for (const double count : graph_.countTicks()) {
        const double y = graph_.pointAt(0, count).y();
        painter.drawLine(QPointF(right - kTick, y), QPointF(right, y));
        const QRectF box(0, y - textHeight / 2.0, right - kTick - kGap, textHeight);
        if (box.bottom() > freeAbove || box.top() < 0)
            continue;
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter,
                         QString::fromStdString(countLabel(count)));
        freeAbove = box.top();
    }
}

} // namespace huebase
