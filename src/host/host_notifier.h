#pragma once

#include <cstdint>
#include <string>

namespace huebase {

// Tells the host how the session ended. The status text is the decimal code
// followed by "G": "0G" for success, "-1G" for failure.
class HostNotifier {
public:
    virtual ~HostNotifier() = default;

    // Delivers the status text; false when the host could not be reached.
    virtual bool tell(const std::string& status) = 0;
    // What the user is shown when tell fails.
    virtual std::string unreachableMessage() const = 0;
};

// "0G", "-1G", ...
std::string hostStatusText(std::int32_t code);

} // namespace huebase
