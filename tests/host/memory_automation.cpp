#include "memory_automation.h"

namespace huebase::testing {

void MemoryObject::failIfListed(const std::string& member) const {
    if (failing_.count(member) != 0)
        throw AutomationError(member + " failed");
}

std::shared_ptr<AutomationObject> MemoryObject::objectProperty(const std::string& name) {
    failIfListed(name);
    const auto found = objects_.find(name);
    if (found == objects_.end())
        throw AutomationError("no property " + name);
    return found->second;
}

std::string MemoryObject::textProperty(const std::string& name) {
    failIfListed(name);
    ++reads_;
    const auto found = texts_.find(name);
    if (found == texts_.end())
        throw AutomationError("no property " + name);
    return found->second;
}

void MemoryObject::forEachItem(const std::function<bool(AutomationObject& item)>& visit) {
    failIfListed("_NewEnum");
    for (const auto& item : items_)
        if (!visit(*item))
            return;
}

void MemoryObject::call(const std::string& method, const std::string& argument) {
    failIfListed(method);
    calls_.emplace_back(method, argument);
}

std::shared_ptr<AutomationObject> MemoryAutomation::attach(const std::string& progId) {
    requests_.push_back(progId);
    const auto found = running_.find(progId);
    return found == running_.end() ? nullptr : found->second;
}

} // namespace huebase::testing
