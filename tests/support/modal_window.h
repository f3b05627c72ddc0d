#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace huebase::testing {

// Runs act on the first modal window of type Window that opens, from inside
// its own event loop. If none opens within five seconds the test fails and
// whatever modal window is open gets closed, so that no test hangs.
template <typename Window> void whenModalOpens(std::function<void(Window&)> act) {
    auto* poll = new QTimer;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(poll, &QTimer::timeout, [poll, act, clock] {
        if (auto* modal = qobject_cast<Window*>(QApplication::activeModalWidget())) {
            poll->stop();
            poll->deleteLater();
            act(*modal);
        } else if (clock->elapsed() > 5000) {
            poll->stop();
            poll->deleteLater();
            ADD_FAILURE() << "the expected modal window did not open";
            if (QWidget* stuck = QApplication::activeModalWidget())
                stuck->close();
        }
    });
    poll->start(10);
}

} // namespace huebase::testing
