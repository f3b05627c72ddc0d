#include "host/automation.h"

#ifdef _WIN32
#include "host/com_automation.h"
#else
#include "host/unavailable_automation.h"
#endif

namespace huebase {

std::unique_ptr<Automation> makeSystemAutomation() {
#ifdef _WIN32
    return std::make_unique<ComAutomation>();
#else
    return std::make_unique<UnavailableAutomation>();
#endif
}

} // namespace huebase
