#pragma once

#include "browser/lut_file.h"
#include "core/lut_node.h"
#include "support/modal_window.h"

#include "support/scratch_folder.h"

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
