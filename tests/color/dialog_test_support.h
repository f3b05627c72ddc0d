#pragma once

#include "color/color_patch.h"
#include "color/color_ref_dialog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace huebase::testing {

// Runs act on the first modal window of type Window that opens, from inside
// its event loop. If none opens within five seconds the test fails; any modal
// window still open then is closed so that no test hangs.
template <typename Window> void whenModalOpens(std::function<void(Window&)> act) {
    auto* poll = new QTimer;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(poll, &QTimer::timeout, [poll, act, clock] {
        if (auto* modal = qobject_cast<Window*>(QApplication::activeModalWidget())) {
            poll->deleteLater();
            poll->stop();
            act(*modal);
            return;
        }
        if (clock->elapsed() > 5000) {
            poll->deleteLater();
            poll->stop();
            ADD_FAILURE() << "the expected modal window did not open";
            if (QWidget* stuck = QApplication::activeModalWidget())
                stuck->close();
        }
    });
    poll->start(10);
}

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
