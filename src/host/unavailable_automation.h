#pragma once

#include "host/automation.h"

namespace huebase {

// The automation of systems without COM: there is never a running
// application to attach to.
class UnavailableAutomation : public Automation {
public:
    std::shared_ptr<AutomationObject> attach(const std::string& progId) override;
};

} // namespace huebase
