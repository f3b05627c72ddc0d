#pragma once

#include "core/clut_table.h"

#include <initializer_list>
#include <limits>
#include <utility>

namespace huebase::testing {

// A colour table of "None" nodes: each value from a node's up to the next
// takes that node's colour, values above the last the no-data colour, values
// below the first black.
inline ClutTable flatColors(std::initializer_list<std::pair<float, ColorValue>> nodes,
                            ColorValue noData = 0) {
    LutTable table;
    for (const auto& [value, color] : nodes)
        table.push_back({value, MethodNone, color, value});
    ClutTable colors;
    colors.setTable(table, noData);
    return colors;
}

// Every finite value in one colour.
inline ClutTable oneColor(ColorValue color) {
    return flatColors({{std::numeric_limits<float>::lowest(), color}}, color);
}

} // namespace huebase::testing
