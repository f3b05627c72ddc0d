#pragma once

#ifdef _WIN32

#include "host/automation.h"

namespace huebase {

// Late-bound COM automation: attaches with GetActiveObject to the running
// object registered for the ProgID's CLSID, and resolves every member name
// through IDispatch::GetIDsOfNames when it is used. Collections are walked
// with their enumerator (_NewEnum), or by Count and Item(1..Count) when they
// have none. COM is initialised for the calling thread for the adapter's
// lifetime; the objects it hands out must not outlive it.
class ComAutomation : public Automation {
public:
    ComAutomation();
    ~ComAutomation() override;
    ComAutomation(const ComAutomation&) = delete;
    ComAutomation& operator=(const ComAutomation&) = delete;

    std::shared_ptr<AutomationObject> attach(const std::string& progId) override;

private:
    bool uninitialize_ = false;
};

} // namespace huebase

#endif
