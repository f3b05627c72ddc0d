#pragma once

#include "host/automation.h"
#include "host/host_notifier.h"

namespace huebase {

// Tells the host's own application through automation: attaches to the
// running "MapInfo.Application", walks its MBApplications collection in the
// collection's order and calls Do(status) on the first item whose Name,
// upper-cased, is "GRIDTINT.MBX". Any failing call on the way counts as the
// host not being found; so does an empty walk.
class AutomationNotifier : public HostNotifier {
public:
    static constexpr const char* kProgId = "MapInfo.Application";
    static constexpr const char* kApplications = "MBApplications";
    static constexpr const char* kApplicationName = "GRIDTINT.MBX";

    // The automation is not owned and must outlive the notifier.
    explicit AutomationNotifier(Automation& automation) : automation_(automation) {}

    bool tell(const std::string& status) override;
    std::string unreachableMessage() const override;

private:
    Automation& automation_;
};

} // namespace huebase
