#pragma once

#include "host/host_notifier.h"

#include <string>
#include <vector>

namespace huebase::testing {

// A host that records every status it is told; `reachable` decides whether
// telling succeeds.
class RecordingNotifier : public HostNotifier {
public:
    bool tell(const std::string& status) override {
        statuses.push_back(status);
        return reachable;
    }
    std::string unreachableMessage() const override { return "gone"; }

    std::vector<std::string> statuses;
    bool reachable = true;
};

} // namespace huebase::testing
