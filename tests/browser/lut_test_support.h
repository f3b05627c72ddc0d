#pragma once

#include "browser/lut_file.h"
#include "support/scratch_folder.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace huebase::testing {

// Nodes at the values, method "Lin", coloured with the colours in turn, each
// upper limit the next value.
inline LutTable tableAt(const std::vector<float>& values,
                        const std::vector<ColorValue>& colors = {0xFF0000, 0x00FF00, 0x0000FF}) {
    LutTable table;
    for (std::size_t i = 0; i < values.size(); ++i)
        table.push_back({values[i], MethodLin, colors[i % colors.size()],
                         values[i + 1 < values.size() ? i + 1 : i]});
    return table;
}

// Writes a .lut file with the format's own writer and returns its path.
inline std::string saveLut(const ScratchFolder& folder, const std::string& name,
                           const LutTable& table, ColorValue noData = 0) {
    return folder.write(name, LutFile::text(table, noData, '.'));
}

inline std::string contentsOf(const std::filesystem::path& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

} // namespace huebase::testing
