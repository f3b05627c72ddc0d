#include "editor/node_tab_strip.h"

#include "color/qt_color.h"
#include "editor/distribution_graph.h"
#include "editor/lut_editor_model.h"
#include "editor/reporting_errors.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace huebase {

namespace {

int shiftStateOf(Qt::KeyboardModifiers modifiers) {
    int state = NoShift;
    if (modifiers & Qt::ShiftModifier)
        state |= ShiftKey;
    if (modifiers & Qt::ControlModifier)
        state |= CtrlKey;
    if (modifiers & Qt::AltModifier)
        state |= AltKey;
    return state;
}

// A dark outline on light colours and a light one on dark colours.
QColor outlineFor(const QColor& fill) {
    return fill.lightness() > 110 ? QColor(40, 40, 40) : QColor(225, 225, 225);
}

} // namespace

NodeTabStrip::NodeTabStrip(LutEditorModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    setObjectName("GraphColorTab");
    setAccessibleName("Nodes");
    setAccessibleDescription("Arrow keys move the current node, Delete removes it, "
                             "Space picks its colour, Tab goes to the next node");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setFixedHeight(18);
    model_.addListener(this);
}

NodeTabStrip::~NodeTabStrip() {
    model_.removeListener(this);
}

QSize NodeTabStrip::sizeHint() const {
    return {600, 18};
}

double NodeTabStrip::pixelOf(float value) const {
    return model_.graphCoordinates().xToPixel(value, width());
}

double NodeTabStrip::valueAt(double pixelX) const {
    return model_.graphCoordinates().pixelToX(pixelX, width());
}

QRect NodeTabStrip::tabRect(int k) const {
    const double centre = pixelOf(model_.row(k).value);
    const int left = static_cast<int>(std::lround(centre - kTabWidth / 2.0));
    return {left, 1, kTabWidth, height() - 2};
}

int NodeTabStrip::tabAt(QPoint point) const {
    if (point.y() < 0 || point.y() >= height() || width() <= 0)
        return -1;
    const GraphCoordinates& c = model_.graphCoordinates();
    const double unitsPerPixel = std::fabs(c.width) / width();
    const double x = valueAt(point.x() + 0.5);
    return model_.tabAt(static_cast<float>(x), static_cast<float>(unitsPerPixel * kTabWidth / 2.0));
}

QString NodeTabStrip::tabToolTip(int k) const {
    return QString::fromStdString(model_.tabToolTip(k));
}

void NodeTabStrip::setCurrentTab(int k) {
    current_ = std::clamp(k, 0, model_.rowCount() - 1);
    update();
}

void NodeTabStrip::tabsPlaced() {
    update();
}

void NodeTabStrip::rowsReset() {
    setCurrentTab(current_);
}

void NodeTabStrip::rowChanged(int) {
    update();
}

void NodeTabStrip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    // The track the buttons sit on, lined up with the graph and the bar.
    painter.fillRect(QRect(0, height() / 2 - 1, width(), 2), palette().mid());
    if (!model_.tabsPlaced())
        return;
    const QRect dirty = event->rect();
    const std::vector<NodeRow>& rows = model_.rows().all();
    const int count = static_cast<int>(rows.size());
    QRect r = count > 0 ? tabRect(0) : QRect();
    for (int k = 0; k < count; ++k) {
        const QRect next = k + 1 < count ? tabRect(k + 1) : QRect();
        if (r.intersects(dirty)) {
            const QColor fill = toQColor(rows[k].color);
            painter.fillRect(r, fill);
            // Outlined only when the next button leaves it whole: where nodes
            // crowd, outlines would hide their colours.
            if (next.isNull() || !next.intersects(r)) {
                painter.setPen(outlineFor(fill));
                painter.drawRect(r.adjusted(0, 0, -1, -1));
            }
        }
        r = next;
    }
    if (hasFocus() && current_ < model_.rowCount()) {
        const QRect r = tabRect(current_).adjusted(-2, -1, 1, 0);
        painter.setPen(QPen(palette().highlight().color(), 2));
        painter.drawRect(r);
    }
}

void NodeTabStrip::mousePressEvent(QMouseEvent* event) {
    const int k = tabAt(event->position().toPoint());
    pressed_ = k;
    movedWhilePressed_ = false;
    if (k < 0)
        return;
    setCurrentTab(k);
    reportingErrors([&] {
        const TabPointer pointer = model_.pressOnTab(
            k, DistributionGraph::buttonOf(event->button()), shiftStateOf(event->modifiers()));
        if (pointer == TabPointer::Arrow)
            setCursor(Qt::ArrowCursor);
        else if (pointer == TabPointer::SizeWestEast)
            setCursor(Qt::SizeHorCursor);
    });
}

void NodeTabStrip::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() != Qt::NoButton)
        movedWhilePressed_ = true;
    if (model_.dragIndex() >= 0)
        reportingErrors(
            [&] { model_.moveOnGraph(static_cast<float>(valueAt(event->position().x()))); });
}

void NodeTabStrip::mouseReleaseEvent(QMouseEvent* event) {
    const int pressed = std::exchange(pressed_, -1);
    if (model_.dragIndex() >= 0) {
        // A drag made with the button held ends where the button comes up; a
        // Shift+right click leaves the node following the pointer until the
        // next release over the graph.
        if (movedWhilePressed_)
            reportingErrors([&] {
                model_.releaseOnGraph(static_cast<float>(valueAt(event->position().x())),
                                      MouseButton::Right);
            });
        if (model_.dragIndex() < 0)
            setCursor(Qt::ArrowCursor);
        return;
    }
    setCursor(Qt::ArrowCursor);
    if (event->button() == Qt::LeftButton && pressed >= 0 &&
        tabAt(event->position().toPoint()) == pressed && model_.clickOpensColorChoice())
        emit colorChoiceRequested(pressed);
}

void NodeTabStrip::keyPressEvent(QKeyEvent* event) {
    const bool large = event->modifiers() & Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        reportingErrors([&] { model_.nudgeNode(current_, false, large); });
        return;
    case Qt::Key_Right:
    case Qt::Key_Up:
        reportingErrors([&] { model_.nudgeNode(current_, true, large); });
        return;
    case Qt::Key_Home:
        setCurrentTab(0);
        return;
    case Qt::Key_End:
        setCurrentTab(model_.rowCount() - 1);
        return;
    case Qt::Key_Delete:
        reportingErrors([&] { model_.removeNode(current_); });
        setCurrentTab(current_);
        return;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (model_.clickOpensColorChoice())
            emit colorChoiceRequested(current_);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

// Tab walks the nodes like a row of buttons, then leaves the strip.
bool NodeTabStrip::focusNextPrevChild(bool next) {
    const int k = current_ + (next ? 1 : -1);
    if (hasFocus() && k >= 0 && k < model_.rowCount()) {
        setCurrentTab(k);
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

bool NodeTabStrip::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int k = tabAt(help->pos());
        if (k >= 0)
            QToolTip::showText(help->globalPos(), tabToolTip(k), this, tabRect(k));
        else
            QToolTip::hideText();
        return true;
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::event(event);
}

} // namespace huebase
