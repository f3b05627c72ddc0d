#pragma once

#include <QAccessibleWidget>

class QComboBox;

namespace huebase {

// What an assistive client reads of a drop-down list that cannot be typed
// in: its accessible name (or its label's text) as the name and the current
// choice as the value. Qt's own interface names such a list by its current
// choice on Linux, so the method lists of all rows would be called alike.
// The popup list stays its child, and Press or ShowMenu opens it.
class ChoiceListAccessible : public QAccessibleWidget {
public:
    explicit ChoiceListAccessible(QComboBox* list);

    // Puts the interface in place for every such list; call once the
    // application object exists, before any window is built.
    static void install();

    QString text(QAccessible::Text t) const override;
    QAccessible::State state() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    static QAccessibleInterface* create(const QString& className, QObject* object);
    QComboBox* list() const;
};

} // namespace huebase
