#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace huebase {

// A failed late-bound call: a missing member, a wrong type, a server that
// went away. Adapters throw it from every member below.
class AutomationError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// An object of a running application reached through late-bound automation:
// members are looked up by name when they are used.
class AutomationObject {
public:
    virtual ~AutomationObject() = default;

    // A property that holds an object (a collection, an item).
    virtual std::shared_ptr<AutomationObject> objectProperty(const std::string& name) = 0;
    // A property read as text.
    virtual std::string textProperty(const std::string& name) = 0;
    // Visits the items of a collection in the collection's own order until
    // visit returns false.
    virtual void forEachItem(const std::function<bool(AutomationObject& item)>& visit) = 0;
    // Calls a method with one string argument.
    virtual void call(const std::string& method, const std::string& argument) = 0;
};

// The platform's automation: attaching to an application that is already
// running, by its ProgID. It never starts one.
class Automation {
public:
    virtual ~Automation() = default;

    // The application object, or nullptr when none is running or attaching
    // fails.
    virtual std::shared_ptr<AutomationObject> attach(const std::string& progId) = 0;
};

// The adapter of the system the program is built for: COM on Windows; on
// other systems attaching always fails.
std::unique_ptr<Automation> makeSystemAutomation();

} // namespace huebase
