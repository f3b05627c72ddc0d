#include "host/automation_notifier.h"
#include "host/command_notifier.h"
#include "host/unavailable_automation.h"

#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace huebase {
namespace {

// A running host in memory that is its own MBApplications collection, and
// the items of that collection. Unknown members throw, as late-bound calls do.
struct FakeObject : AutomationObject, std::enable_shared_from_this<FakeObject> {
    std::shared_ptr<AutomationObject> objectProperty(const std::string& member) override {
        if (member != "MBApplications" || !hasCollection)
            throw AutomationError(member);
        return shared_from_this();
    }
    std::string textProperty(const std::string& member) override {
        if (member != "Name")
            throw AutomationError(member);
        return name;
    }
    void forEachItem(const std::function<bool(AutomationObject&)>& visit) override {
        for (const auto& item : items)
            if (!visit(*item))
                return;
    }
    void call(const std::string& method, const std::string& argument) override {
        if (method == failing)
            throw AutomationError(method);
        calls.push_back(method + "(" + argument + ")");
    }

    std::string name, failing;
    bool hasCollection = true;
    std::vector<std::shared_ptr<FakeObject>> items;
    std::vector<std::string> calls;
};

struct FakeAutomation : Automation {
    // A host whose MBApplications holds items with these names, in this order.
    explicit FakeAutomation(const std::vector<std::string>& names = {}) {
        for (const std::string& name : names)
            host->items.emplace_back(std::make_shared<FakeObject>())->name = name;
    }
    std::shared_ptr<AutomationObject> attach(const std::string& id) override {
        return id == progId ? host : nullptr;
    }
    std::string progId = "MapInfo.Application";
    std::shared_ptr<FakeObject> host = std::make_shared<FakeObject>();
};

TEST(AutomationNotifier, OnlyTheFirstItemNamedGridtintGetsTheStatus) {
    FakeAutomation automation({"OTHER.MBX", "GRIDTINT.MBX ", "C:\\apps\\GRIDTINT.MBX", "GRIDTINT",
                               "GridTint.mbx", "GRIDTINT.MBX"});
    EXPECT_TRUE(AutomationNotifier(automation).tell("-1G"));
    for (std::size_t i = 0; i < automation.host->items.size(); ++i)
        EXPECT_EQ(automation.host->items[i]->calls,
                  i == 4 ? std::vector<std::string>{"Do(-1G)"} : std::vector<std::string>{})
            << automation.host->items[i]->name;
}

TEST(AutomationNotifier, AnyFailureOnTheWayIsHostNotFound) {
    FakeAutomation emptyHost, withoutCollection({"GRIDTINT.MBX"}), brokenDo({"gridtint.mbx"}),
        otherProgId({"GRIDTINT.MBX"});
    withoutCollection.host->hasCollection = false;
    brokenDo.host->items[0]->failing = "Do";
    otherProgId.progId = "MapInfo.Application.x64";
    UnavailableAutomation unavailable;
    for (Automation* automation : std::initializer_list<Automation*>{
             &emptyHost, &withoutCollection, &brokenDo, &otherProgId, &unavailable}) {
        AutomationNotifier notifier(*automation);
        EXPECT_FALSE(notifier.tell("0G"));
        EXPECT_EQ(notifier.unreachableMessage(), "Unable to find MapInfo application running");
    }
#ifndef _WIN32
    EXPECT_EQ(makeSystemAutomation()->attach("MapInfo.Application"), nullptr);
#endif
}

#ifndef _WIN32
TEST(CommandNotifier, StatusIsTheLastArgumentOfAShellLineThatIsWaitedFor) {
    testing::ScratchFolder folder;
    const std::string out = folder.file("status.txt");
    // The pause is one that a notifier not waiting for the command would miss.
    CommandNotifier notifier("sleep 0.2; printf '[%s]' 'two words' >'" + out + "'");
    for (const std::string status : {"-1G", "0G; false"}) {
        EXPECT_TRUE(notifier.tell(status));
        std::ostringstream written;
        written << std::ifstream(out).rdbuf();
        EXPECT_EQ(written.str(), "[two words][" + status + "]");
    }
    for (const char* command : {"false", "exit 3 #", "/nonexistent/huebase-host-command"}) {
        CommandNotifier failing(command);
        EXPECT_FALSE(failing.tell("0G")) << command;
        EXPECT_NE(failing.unreachableMessage().find(command), std::string::npos);
    }
}
#endif

} // namespace
} // namespace huebase
