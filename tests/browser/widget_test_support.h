#pragma once

#include "browser/lut_file.h"
#include "core/lut_node.h"

#include "util/scratch_folder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace huebase::testing {

// Runs act on the first modal window of type Window that opens, from inside
// its event loop. If none opens within five seconds the test fails and any
// modal window still open is closed, so that no test hangs.
template <typename Window> void whenModalOpens(std::function<void(Window&)> act) {
    auto* poll = new QTimer;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(poll, &QTimer::timeout, [poll, act, clock] {
        if (auto* modal = qobject_cast<Window*>(QApplication::activeModalWidget())) {
            poll->stop();
            poll->deleteLater();
            act(*modal);
            return;
        }
        if (clock->elapsed() > 5000) {
            poll->stop();
            poll->deleteLater();
            ADD_FAILURE() << "the expected modal window did not open";
            if (QWidget* stuck = QApplication::activeModalWidget())
                stuck->close();
        }
    });
    poll->start(10);
}

// A table of nodes at the given values, method "Lin", coloured from blue
// through the given colours (cycled), each upper limit the next value.
inline LutTable tableAt(const std::vector<float>& values,
                        const std::vector<ColorValue>& colors = {0xFF0000, 0x00FF00, 0x0000FF,
                                                                 0xFFFFFF}) {
    LutTable table;
    for (std::size_t i = 0; i < values.size(); ++i)
        table.push_back({values[i], MethodLin, colors[i % colors.size()],
                         i + 1 < values.size() ? values[i + 1] : values[i]});
    return table;
}

// Writes a .lut file into the folder with the format's own writer.
inline std::string saveLut(const ScratchFolder& folder, const std::string& name,
                           const LutTable& table, ColorValue noData = 0) {
    return folder.write(name, LutFile::text(table, noData, '.'));
}

} // namespace huebase::testing
