#pragma once

#include "color/color_patch.h"
#include "color/color_ref_dialog.h"
#include "support/modal_window.h"

#include <QLineEdit>
#include <QScrollBar>

#include <stdexcept>
#include <string>

namespace huebase::testing {

// Controls of a colour dialog, found by their names.
struct DialogControls {
    explicit DialogControls(QWidget& dialog) : dialog(dialog) {}

    QLineEdit& edit(const char* name) const { return find<QLineEdit>(name); }
    QScrollBar& slider(const char* name) const { return find<QScrollBar>(name); }
    ColorPatch& patch(const char* name) const { return find<ColorPatch>(name); }
    QTimer& timer(const char* name) const { return find<QTimer>(name); }

    // Members of the control arrays lblAdj and picPoint carry their index.
    ColorPatch& element(const char* name, int index) const {
        for (ColorPatch* p : dialog.findChildren<ColorPatch*>(name))
            if (p->property("Index").toInt() == index)
                return *p;
        throw std::runtime_error(std::string("no element ") + name);
    }

    template <typename T> T& find(const char* name) const {
        T* control = dialog.findChild<T*>(name);
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }

    QWidget& dialog;
};

} // namespace huebase::testing
