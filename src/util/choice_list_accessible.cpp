#include "util/choice_list_accessible.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace huebase {

ChoiceListAccessible::ChoiceListAccessible(QComboBox* list)
    : QAccessibleWidget(list, QAccessible::ComboBox) {}

void ChoiceListAccessible::install() {
    QAccessible::installFactory(&ChoiceListAccessible::create);
}

// Editable lists keep Qt's interface: their text box is a child of its own.
QAccessibleInterface* ChoiceListAccessible::create(const QString& className, QObject* object) {
    if (className != QLatin1String("QComboBox"))
        return nullptr;
    auto* list = qobject_cast<QComboBox*>(object);
    return list != nullptr && !list->isEditable() ? new ChoiceListAccessible(list) : nullptr;
}

QComboBox* ChoiceListAccessible::list() const {
    return static_cast<QComboBox*>(widget());
}

// A list without a name stays without one, so the lack shows instead of
// being covered by the current choice.
QString ChoiceListAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Value)
        return list()->currentText();
    return QAccessibleWidget::text(t);
}

QAccessible::State ChoiceListAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = list()->view()->isVisible();
    return state;
}

int ChoiceListAccessible::childCount() const {
    return 1;
}

QAccessibleInterface* ChoiceListAccessible::child(int index) const {
    return index == 0 ? QAccessible::queryAccessibleInterface(list()->view()) : nullptr;
}

int ChoiceListAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child != nullptr && child->object() == list()->view() ? 0 : -1;
}

QStringList ChoiceListAccessible::actionNames() const {
    return {showMenuAction(), pressAction()};
}

void ChoiceListAccessible::doAction(const QString& actionName) {
    if (actionName == showMenuAction() || actionName == pressAction())
        list()->showPopup();
    else
        QAccessibleWidget::doAction(actionName);
}

} // namespace huebase
