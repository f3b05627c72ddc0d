#include "host/unavailable_automation.h"

namespace huebase {

std::shared_ptr<AutomationObject> UnavailableAutomation::attach(const std::string&) {
    return nullptr;
}

} // namespace huebase
