#pragma once

// Data shared by the editor's benchmarks.

#include "core/color_value.h"
#include "core/lut_node.h"
#include "editor/distribution.h"

#include <cstdint>
#include <vector>

namespace huebase::bench {

// An elevation-like distribution of n distinct values in half-metre steps.
inline std::vector<DistributionRow> distribution(int n) {
    std::vector<DistributionRow> rows(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        rows[i] = {-1500.0f + 0.5f * static_cast<float>(i),
                   static_cast<double>(1 + (i * 7919) % 613)};
    return rows;
}

inline LutTable rampTable(int n, float from, float to) {
    LutTable table(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        const float value = from + (to - from) * static_cast<float>(i) / static_cast<float>(n - 1);
        table[i] = {value, static_cast<std::uint8_t>(i % 5),
                    composeColor(i % 256, 255 - i % 256, i % 97), value};
    }
    for (int i = 0; i + 1 < n; ++i)
        table[i].upper = table[i + 1].value;
    return table;
}

} // namespace huebase::bench
