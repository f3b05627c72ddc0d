#pragma once

#include "host/automation.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace huebase::testing {

// An automation object held in memory: text and object properties, items in
// the order they were added, and a log of the method calls it received.
// Members listed as failing throw AutomationError, as a broken server would.
class MemoryObject : public AutomationObject {
public:
    void setText(const std::string& name, std::string text) { texts_[name] = std::move(text); }
    void setObject(const std::string& name, std::shared_ptr<MemoryObject> object) {
        objects_[name] = std::move(object);
    }
    void addItem(std::shared_ptr<MemoryObject> item) { items_.push_back(std::move(item)); }
    void failOn(const std::string& member) { failing_.insert(member); }

    // (method, argument) of every call, oldest first.
    const std::vector<std::pair<std::string, std::string>>& calls() const { return calls_; }
    // How often a text property was read.
    int reads() const { return reads_; }

    std::shared_ptr<AutomationObject> objectProperty(const std::string& name) override;
    std::string textProperty(const std::string& name) override;
    void forEachItem(const std::function<bool(AutomationObject& item)>& visit) override;
    void call(const std::string& method, const std::string& argument) override;

private:
    void failIfListed(const std::string& member) const;

    std::map<std::string, std::string> texts_;
    std::map<std::string, std::shared_ptr<MemoryObject>> objects_;
    std::vector<std::shared_ptr<MemoryObject>> items_;
    std::set<std::string> failing_;
    std::vector<std::pair<std::string, std::string>> calls_;
    int reads_ = 0;
};

// Running applications by ProgID; attaching to any other gives nothing.
class MemoryAutomation : public Automation {
public:
    void run(const std::string& progId, std::shared_ptr<MemoryObject> application) {
        running_[progId] = std::move(application);
    }
    const std::vector<std::string>& attachRequests() const { return requests_; }

    std::shared_ptr<AutomationObject> attach(const std::string& progId) override;

private:
    std::map<std::string, std::shared_ptr<MemoryObject>> running_;
    std::vector<std::string> requests_;
};

} // namespace huebase::testing
