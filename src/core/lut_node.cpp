#include "core/lut_node.h"

#include <cmath>

namespace huebase {

const char* methodName(std::uint8_t method) noexcept {
    static const char* const names[kMethodCount] = {"Lin", "Log", "Exp", "Log+", "Exp+", "None"};
    return method < kMethodCount ? names[method] : "";
}

float rampWeight(std::uint8_t method, float t) noexcept {
    switch (method) {
    case MethodLin: return t;
    case MethodLog: return t * t;
    case MethodExp: return static_cast<float>(std::sqrt(static_cast<double>(t)));
    case MethodLogPlus: return static_cast<float>(std::pow(static_cast<double>(t), 4.0));
    case MethodExpPlus: return static_cast<float>(std::pow(static_cast<double>(t), 0.3));
    default: return 0.0f;
    }
}

} // namespace huebase
