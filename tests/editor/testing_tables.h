#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"

namespace huebase::testing {

// n nodes evenly from lo to hi, "Lin", grey levels rising.
inline LutTable rampTable(int n, float lo, float hi) {
    LutTable table;
    for (int k = 0; k < n; ++k) {
        const float value = lo + (hi - lo) * static_cast<float>(k) / static_cast<float>(n - 1);
        const int level = 255 * k / (n - 1);
        table.push_back({value, MethodLin, composeColor(level, level, level), 0.0f});
    }
    table.back().upper = hi;
    return table;
}

} // namespace huebase::testing
