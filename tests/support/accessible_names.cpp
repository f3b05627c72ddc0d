#include "support/accessible_names.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QMetaEnum>
#include <QWidget>

#include <map>

namespace huebase::testing {

namespace {

bool operated(const QAccessibleInterface& control) {
    switch (control.role()) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::Dial:
    case QAccessible::ScrollBar:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Table:
    case QAccessible::Cell:
    case QAccessible::PageTab:
    case QAccessible::Link:
        return true;
    default:
        return control.state().focusable;
    }
}

std::string describe(QAccessibleInterface& control) {
    std::string where = QMetaEnum::fromType<QAccessible::Role>().valueToKey(control.role());
    // A list item has no object of its own: it is told by its list.
    QAccessibleInterface* holder = &control;
    while (holder != nullptr && holder->object() == nullptr)
        holder = holder->parent();
    if (holder != nullptr) {
        where += " in '" + holder->object()->objectName().toStdString() + "' (" +
                 holder->object()->metaObject()->className() + ")";
    }
    return where;
}

void collect(QAccessibleInterface& node, std::vector<AccessibleControl>& found) {
    for (int i = 0; i < node.childCount(); ++i) {
        QAccessibleInterface* child = node.child(i);
        if (child == nullptr || child->state().invisible)
            continue;
        if (operated(*child))
            found.push_back({child->text(QAccessible::Name), child->text(QAccessible::Value),
                             describe(*child)});
        collect(*child, found);
    }
}

} // namespace

std::vector<AccessibleControl> operatedControls(QWidget& window) {
    std::vector<AccessibleControl> found;
    if (QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window))
        collect(*root, found);
    return found;
}

std::vector<std::string> accessibleNameFaults(QWidget& window) {
    std::vector<std::string> faults;
    std::map<QString, std::string> seen;
    for (const AccessibleControl& control : operatedControls(window)) {
        if (control.name.trimmed().isEmpty()) {
            faults.push_back("no name: " + control.where);
            continue;
        }
        const auto [first, fresh] = seen.emplace(control.name, control.where);
        if (!fresh)
            faults.push_back("'" + control.name.toStdString() + "' names both " + first->second +
                             " and " + control.where);
    }
    return faults;
}

} // namespace huebase::testing
