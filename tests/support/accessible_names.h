#pragma once

#include <QString>

#include <string>
#include <vector>

class QWidget;

namespace huebase::testing {

// One control of a window as an assistive client meets it.
struct AccessibleControl {
    QString name;
    QString value;     // what the control shows: a box's text, a list's choice
    std::string where; // role, object name and class, to say which control failed
};

// The shown controls a user operates in a window's accessibility tree, in
// tree order: buttons, boxes, lists and their items, sliders, scroll bars and
// anything else that takes the focus. Hidden subtrees are left out, as an
// assistive client leaves them out.
std::vector<AccessibleControl> operatedControls(QWidget& window);

// Every operated control without a name and every name two of them share,
// each fault naming its controls; empty when all is well.
std::vector<std::string> accessibleNameFaults(QWidget& window);

} // namespace huebase::testing
