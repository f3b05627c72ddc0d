#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"

#include <cstdint>

namespace huebase {

// One node as a value row shows it. The bounds are what the row's value is
// checked against when typed: normally the neighbouring nodes' values.
struct NodeRow {
    float value = 0.0f;
    float lower = 0.0f;
    float upper = 0.0f;
    bool locked = false;
    std::uint8_t method = MethodLin;
    ColorValue color = 0;

    friend bool operator==(const NodeRow&, const NodeRow&) = default;
};

} // namespace huebase
