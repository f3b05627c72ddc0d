#include "editor/node_value_prompt.h"

#include "editor/lut_editor_model.h"
#include "editor/numeric_text.h"
#include "util/messages.h"
#include "util/vb_format.h"

#include <QInputDialog>

#include <algorithm>

namespace huebase {

namespace {
QString text(float value) {
    return QString::fromStdString(floatText(value));
}

void refuse(const QString& why) {
    showMessage(why.toStdString(), NodeValuePrompt::kTitle, MessageIcon::Exclamation);
}
} // namespace

std::optional<float> NodeValuePrompt::ask(QWidget* parent, const LutEditorModel& model,
                                          const QString& suggested) {
    const float first = model.row(0).value;
    const float last = model.row(model.rowCount() - 1).value;
    QInputDialog dialog(parent);
    dialog.setObjectName("NodeValuePrompt");
    dialog.setWindowTitle(kTitle);
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setLabelText(
        QString("Value of the new node, between %1 and %2:").arg(text(first), text(last)));
    dialog.setTextValue(suggested);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;

    const QString typed = dialog.textValue().trimmed();
    const std::optional<float> value = NumericText::toSingle(typed.toStdString());
    if (!value) {
        refuse(QString("\"%1\" is not a number: no node was inserted.").arg(typed));
        return std::nullopt;
    }
    if (model.rows().intervalHolding(*value) >= 0)
        return value;
    const auto& rows = model.rows().all();
    if (std::any_of(rows.begin(), rows.end(), [&](const NodeRow& r) { return r.value == *value; }))
        refuse(QString("There is already a node at %1: no node was inserted.").arg(text(*value)));
    else if (!(*value > first && *value < last))
        refuse(QString("%1 lies outside the nodes (%2 to %3): no node was inserted.")
                   .arg(text(*value), text(first), text(last)));
    else
        refuse(QString("No node can go at %1: no node was inserted.").arg(text(*value)));
    return std::nullopt;
}

QString NodeValuePrompt::middleAfter(const LutEditorModel& model, int k) {
    const int lower = std::clamp(k, 0, model.rowCount() - 2);
    const float mid = (model.row(lower).value + model.row(lower + 1).value) / 2.0f;
    return text(mid);
}

} // namespace huebase
