#include "host/host_notifier.h"

namespace huebase {

std::string hostStatusText(std::int32_t code) {
    return std::to_string(code) + "G";
}

} // namespace huebase
