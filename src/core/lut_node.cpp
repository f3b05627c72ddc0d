#include "core/lut_node.h"

namespace huebase {

const char* methodName(std::uint8_t method) noexcept {
    static const char* const names[kMethodCount] = {"Lin", "Log", "Exp", "Log+", "Exp+", "None"};
    return method < kMethodCount ? names[method] : "";
}

} // namespace huebase
