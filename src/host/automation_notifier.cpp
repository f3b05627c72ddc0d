#include "host/automation_notifier.h"

#include <algorithm>

namespace huebase {

namespace {
// Only ASCII letters matter for the name compared against.
std::string upperCased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return text;
}
} // namespace

bool AutomationNotifier::tell(const std::string& status) {
    try {
        const std::shared_ptr<AutomationObject> host = automation_.attach(kProgId);
        if (!host)
            return false;
        const std::shared_ptr<AutomationObject> applications = host->objectProperty(kApplications);
        if (!applications)
            return false;
        bool told = false;
        applications->forEachItem([&](AutomationObject& item) {
            if (upperCased(item.textProperty("Name")) != kApplicationName)
                return true;
            item.call("Do", status);
            told = true;
            return false;
        });
        return told;
    } catch (const AutomationError&) {
        return false;
    }
}

std::string AutomationNotifier::unreachableMessage() const {
    return "Unable to find MapInfo application running";
}

} // namespace huebase
