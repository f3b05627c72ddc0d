#include "editor/value_rows_panel.h"

#include "util/guarded.h"

#include "editor/color_table_row.h"
#include "editor/lut_editor_model.h"
#include "editor/reporting_errors.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace huebase {

namespace {
constexpr const char* kIndex = "Index";
}

ValueRowsPanel::ValueRowsPanel(LutEditorModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
    auto* header = new QHBoxLayout;
    header->setContentsMargins(4, 0, 4 + 16, 0);
    header->setSpacing(4);
    const auto addHeading = [&](const char* text, int stretch) {
        auto* label = new QLabel(QString::fromLatin1(text), this);
        label->setStyleSheet("font-weight: bold");
        header->addWidget(label, stretch);
    };
    addHeading("Value", 3);
    addHeading("Method", 2);
    addHeading("Colour", 1);

    RowColContainerSup_ = new QWidget(this);
    RowColContainerSup_->setObjectName("RowColContainerSup");
    RowColContainerSup_->setAccessibleName("Value rows");
    RowColContainerSup_->setMinimumHeight(ColorTableRow::rowHeight() * 3);
    RowColContainerSup_->installEventFilter(this);

    RowColContainer_ = new QWidget(RowColContainerSup_);
    RowColContainer_->setObjectName("RowColContainer");
    RowColContainer_->installEventFilter(this);

    VScroll1_ = new QScrollBar(Qt::Vertical, this);
    VScroll1_->setObjectName("VScroll1");
    VScroll1_->setAccessibleName("Scroll rows");
    VScroll1_->setSingleStep(ColorTableRow::rowHeight());
    VScroll1_->hide();
    connect(VScroll1_, &QScrollBar::valueChanged, this, guarded(this, &ValueRowsPanel::scrolled));

    auto* body = new QHBoxLayout;
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    body->addWidget(RowColContainerSup_, 1);
    body->addWidget(VScroll1_);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(header);
    layout->addLayout(body, 1);

    model_.addListener(this);
    layoutRows();
}

ValueRowsPanel::~ValueRowsPanel() {
    // The rows die after this panel; a value box losing the focus then has
    // no one left to tell.
    for (ColorTableRow* widget : pool_)
        widget->disconnect(this);
    model_.removeListener(this);
}

ColorTableRow* ValueRowsPanel::rowWidget(int k) const {
    for (ColorTableRow* widget : pool_)
        if (widget->isVisibleTo(RowColContainer_) && indexOf(*widget) == k)
            return widget;
    return nullptr;
}

int ValueRowsPanel::rowAt(QPoint pos) const {
    for (QWidget* w = childAt(pos); w != nullptr && w != this; w = w->parentWidget())
        if (const auto* row = qobject_cast<const ColorTableRow*>(w))
            return indexOf(*row);
    return -1;
}

ColorTableRow& ValueRowsPanel::showRow(int k) {
    model_.rows().checkIndex(k);
    const int h = ColorTableRow::rowHeight();
    const int top = k * h;
    const int viewport = RowColContainerSup_->height();
    if (top < VScroll1_->value())
        VScroll1_->setValue(top);
    else if (top + h > VScroll1_->value() + viewport)
        VScroll1_->setValue(top + h - viewport);
    ColorTableRow* widget = rowWidget(k);
    if (widget == nullptr) { // a viewport too small for one whole row
        VScroll1_->setValue(top);
        widget = rowWidget(k);
    }
    return *widget;
}

void ValueRowsPanel::pickColor(int k) {
    showRow(k).pickColor();
}

int ValueRowsPanel::firstRowInView() const {
    return VScroll1_->value() / ColorTableRow::rowHeight();
}

// Enough widgets to fill the viewport at any scroll position.
void ValueRowsPanel::ensurePool() {
    const int h = ColorTableRow::rowHeight();
    const std::size_t needed =
        static_cast<std::size_t>(std::max(1, RowColContainerSup_->height() / h + 2));
    while (pool_.size() < needed) {
        auto* widget = new ColorTableRow(RowColContainer_);
        widget->setObjectName("ColorTableRow1");
        widget->hide();
        widget->findChild<QLineEdit*>("txtValue")->installEventFilter(this);
        connect(widget, &ColorTableRow::offsetChanged, this, [this, widget](float value) {
            if (!binding_)
                reportingErrors([&] { model_.offsetChanged(indexOf(*widget), value); });
        });
        connect(widget, &ColorTableRow::colorChanged, this, [this, widget](ColorValue color) {
            if (!binding_)
                reportingErrors([&] { model_.setColor(indexOf(*widget), color); });
        });
        connect(widget, &ColorTableRow::methodChanged, this, [this, widget](std::uint8_t method) {
            if (!binding_)
                reportingErrors([&] { model_.SetMode(indexOf(*widget), method); });
        });
        pool_.push_back(widget);
    }
}

// The container is as tall as all rows; the scroll bar appears only when it
// is taller than the viewport, and scrolls by the difference.
void ValueRowsPanel::layoutRows() {
    ensurePool();
    const int h = ColorTableRow::rowHeight();
    const int total = model_.rowCount() * h;
    const int viewport = RowColContainerSup_->height();
    RowColContainer_->resize(RowColContainerSup_->width(), total);
    for (ColorTableRow* widget : pool_)
        widget->resize(RowColContainerSup_->width(), h);
    const QSignalBlocker blocker(VScroll1_);
    if (total > viewport) {
        VScroll1_->setMaximum(total - viewport);
        VScroll1_->setPageStep(viewport);
        VScroll1_->show();
    } else {
        VScroll1_->setMaximum(0);
        VScroll1_->hide();
    }
    scrolled(VScroll1_->value());
}

void ValueRowsPanel::scrolled(int value) {
    commitEditedRows();
    RowColContainer_->move(0, -value);
    bindAll();
}

void ValueRowsPanel::bindAll() {
    const int first = firstRowInView();
    const int h = ColorTableRow::rowHeight();
    for (std::size_t i = 0; i < pool_.size(); ++i) {
        ColorTableRow& widget = *pool_[i];
        const int k = first + static_cast<int>(i);
        if (k < model_.rowCount()) {
            bind(widget, k);
            widget.move(0, k * h);
            widget.show();
        } else {
            widget.setProperty(kIndex, -1);
            widget.hide();
        }
    }
}

void ValueRowsPanel::bind(ColorTableRow& widget, int k) {
    const NodeRow& row = model_.row(k);
    binding_ = true;
    widget.setProperty(kIndex, k);
    widget.setNumber(k + 1);
    // The lock first: a value box losing the focus as it is disabled then
    // finds the row locked and validates nothing.
    widget.SetLock(row.locked);
    widget.setMin(row.lower);
    widget.setMax(row.upper);
    widget.SetValue(row.value);
    widget.SetMode(row.method);
    widget.setColor(row.color);
    binding_ = false;
}

// A value being typed belongs to the row it was typed in: it is taken before
// the widget shows another row.
void ValueRowsPanel::commitEditedRows() {
    for (ColorTableRow* widget : pool_) {
        auto* edit = widget->findChild<QLineEdit*>("txtValue");
        if (edit->hasFocus() && edit->isModified() && indexOf(*widget) >= 0)
            widget->commitValue();
    }
}

int ValueRowsPanel::indexOf(const ColorTableRow& widget) const {
    const QVariant index = widget.property(kIndex);
    return index.isValid() ? index.toInt() : -1;
}

void ValueRowsPanel::rowsReset() {
    layoutRows();
}

void ValueRowsPanel::rowChanged(int row) {
    if (ColorTableRow* widget = rowWidget(row))
        bind(*widget, row);
}

void ValueRowsPanel::focusNeighbour(const ColorTableRow& from, int step) {
    const int k = indexOf(from) + step;
    if (k < 0 || k >= model_.rowCount())
        return;
    auto* edit = showRow(k).findChild<QLineEdit*>("txtValue");
    if (edit->isEnabled())
        edit->setFocus(Qt::OtherFocusReason);
}

bool ValueRowsPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == RowColContainerSup_ && event->type() == QEvent::Resize) {
        guard(this, [this] { layoutRows(); });
    } else if ((watched == RowColContainerSup_ || watched == RowColContainer_) &&
               event->type() == QEvent::Wheel) {
        if (VScroll1_->isVisible())
            QCoreApplication::sendEvent(VScroll1_, event);
        return true;
    } else if (event->type() == QEvent::KeyPress) {
        // Up and Down in a value box walk the column, scrolling as they go.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            if (auto* row = qobject_cast<ColorTableRow*>(watched->parent())) {
                guard(this, [&] { focusNeighbour(*row, key == Qt::Key_Up ? -1 : 1); });
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace huebase
