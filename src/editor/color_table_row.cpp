#include "editor/color_table_row.h"

#include "util/guarded.h"

#include "color/color_picker.h"
#include "core/lut_node.h"
#include "editor/row_value_validation.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

namespace huebase {

ColorTableRow::ColorTableRow(QWidget* parent) : QWidget(parent) {
    txtValue_ = new QLineEdit(this);
    txtValue_->setObjectName("txtValue");
    txtValue_->setAccessibleName("Value");
    txtValue_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    txtValue_->installEventFilter(this);

    cmbMethod_ = new QComboBox(this);
    cmbMethod_->setObjectName("cmbMethod");
    cmbMethod_->setAccessibleName("Interpolation method");
    for (int m = 0; m < kMethodCount; ++m)
        cmbMethod_->addItem(QString::fromLatin1(methodName(static_cast<std::uint8_t>(m))));
    cmbMethod_->setCurrentIndex(0);

    ColorPicker1_ = new ColorPicker(this);
    ColorPicker1_->setObjectName("ColorPicker1");
    ColorPicker1_->setAccessibleName("Node colour");

    // Neither has a menu of its own: a right click there opens the menu of
    // whatever holds the row.
    cmbMethod_->setContextMenuPolicy(Qt::NoContextMenu);
    ColorPicker1_->setContextMenuPolicy(Qt::NoContextMenu);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 1, 2, 1);
    layout->setSpacing(4);
    layout->addWidget(txtValue_, 3);
    layout->addWidget(cmbMethod_, 2);
    layout->addWidget(ColorPicker1_, 1);
    setFixedHeight(rowHeight());

    connect(ColorPicker1_, &ColorPicker::Changed, this,
            guarded(this, &ColorTableRow::swatchChanged));
    connect(cmbMethod_, &QComboBox::activated, this, guarded(this, &ColorTableRow::methodChosen));
}

int ColorTableRow::rowHeight() {
    return 28;
}

void ColorTableRow::setColor(ColorValue color) {
    ColorPicker1_->setColor(color);
}

void ColorTableRow::swatchChanged(ColorValue color) {
    color_ = color;
    emit colorChanged(color);
}

void ColorTableRow::SetMode(std::uint8_t method) {
    if (method >= kMethodCount)
        throw VbError(VbError::InvalidCall);
    cmbMethod_->setCurrentIndex(method);
    methodChosen(method);
}

void ColorTableRow::methodChosen(int index) {
    if (index < 0)
        return;
    method_ = static_cast<std::uint8_t>(index);
    emit methodChanged(method_);
}

void ColorTableRow::SetLock(bool locked) {
    locked_ = locked;
    txtValue_->setEnabled(!locked);
}

void ColorTableRow::SetValue(float value) {
    value_ = value;
    txtValue_->setText(QString::fromStdString(floatText(value)));
}

// Rebinding a row to the same node tells an assistive client nothing new.
void ColorTableRow::setNumber(int number) {
    if (number == number_)
        return;
    number_ = number;
    const QString node = QString("Node %1 ").arg(number);
    txtValue_->setAccessibleName(node + "value");
    cmbMethod_->setAccessibleName(node + "method");
    ColorPicker1_->setAccessibleName(node + "colour");
}

void ColorTableRow::pickColor() {
    ColorPicker1_->UserControl_Click();
}

void ColorTableRow::commitValue() {
    if (locked_)
        return;
    const std::optional<ValidatedValue> validated =
        validateRowValue(txtValue_->text().toStdString(), min_, max_);
    if (!validated)
        return;
    const QString text = QString::fromStdString(validated->text);
    if (txtValue_->text() != text)
        txtValue_->setText(text);
    txtValue_->setModified(false);
    value_ = validated->value;
    emit offsetChanged(value_);
}

bool ColorTableRow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtValue_) {
        if (event->type() == QEvent::FocusOut) {
            guard(this, [this] { commitValue(); });
        } else if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            // Enter takes the value as leaving the box does, instead of
            // pressing the window's default button.
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                guard(this, [this] { commitValue(); });
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace huebase
