#pragma once

#include "core/color_value.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace huebase {

// The ramp from a node to the next. The values are the positions of the names
// in the rows' method list and are written to .lut files, so they never change.
// "Log" bends with the square and "Exp" with the square root: the names are
// the reverse of what they suggest, and saved files rely on that meaning.
enum InterpolationMethod : std::uint8_t {
    MethodLin = 0,
    MethodLog = 1,
    MethodExp = 2,
    MethodLogPlus = 3,
    MethodExpPlus = 4,
    MethodNone = 5,
};

inline constexpr int kMethodCount = 6;
// "Lin", "Log", "Exp", "Log+", "Exp+", "None"
const char* methodName(std::uint8_t method) noexcept;

// The fraction handed to BlendColor for position t (0..1) in an interval:
// t, t*t (in single precision), sqrt(t), t^4, t^0.3. "None" and unknown codes
// have no ramp and give 0.
// Inline: the colour query calls it for every value it colours.
inline float rampWeight(std::uint8_t method, float t) noexcept {
    switch (method) {
    case MethodLin:
        return t;
    case MethodLog:
        return t * t;
    case MethodExp:
        return static_cast<float>(std::sqrt(static_cast<double>(t)));
    case MethodLogPlus: {
        // t*t is exact in double, so this is t^4 rounded once, as pow(t, 4.0)
        // should give, without the library call.
        const double square = static_cast<double>(t) * t;
        return static_cast<float>(square * square);
    }
    case MethodExpPlus:
        return static_cast<float>(std::pow(static_cast<double>(t), 0.3));
    default:
        return 0.0f;
    }
}

// One node of a colour table, fields in the order they are saved.
struct LutNode {
    float value = 0.0f;
    std::uint8_t method = MethodLin;
    ColorValue color = 0;
    float upper = 0.0f; // the row's upper bound, normally the next node's value

    friend bool operator==(const LutNode&, const LutNode&) = default;
};

// Ascending by value; node 1 of the table is element 0.
using LutTable = std::vector<LutNode>;

} // namespace huebase
