#pragma once

#include "core/color_value.h"
#include "editor/node_rows.h"

namespace huebase {

// What the user builds in the editor at one moment: every row as it stands
// (value, bounds, lock, method, colour) and the no-data colour. Kept whole,
// so that putting it back gives exactly the rows there were.
struct RampState {
    NodeRows rows;
    ColorValue noDataColor = 0;

    friend bool operator==(const RampState& a, const RampState& b) {
        return a.noDataColor == b.noDataColor && a.rows.all() == b.rows.all();
    }
};

} // namespace huebase
