#include "host/automation_notifier.h"
#include "host/host_session.h"
#include "host/unavailable_automation.h"

#include "memory_automation.h"
#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace huebase {
namespace {

using testing::MemoryAutomation;
using testing::MemoryObject;
using Calls = std::vector<std::pair<std::string, std::string>>;

std::shared_ptr<MemoryObject> application(const std::string& name) {
    auto item = std::make_shared<MemoryObject>();
    item->setText("Name", name);
    return item;
}

// A running host whose MBApplications holds the given items in order.
std::shared_ptr<MemoryObject> runHost(MemoryAutomation& automation,
                                      const std::vector<std::shared_ptr<MemoryObject>>& items) {
    auto host = std::make_shared<MemoryObject>();
    auto collection = std::make_shared<MemoryObject>();
    for (const auto& item : items)
        collection->addItem(item);
    host->setObject("MBApplications", collection);
    automation.run("MapInfo.Application", host);
    return host;
}

TEST(AutomationNotifierWalk, FirstMatchingApplicationGetsTheStatus) {
    MemoryAutomation automation;
    const auto other = application("OTHER.MBX");
    const auto first = application("GridTint.mbx");
    const auto second = application("GRIDTINT.MBX");
    const auto after = application("LATER.MBX");
    runHost(automation, {other, first, second, after});

    AutomationNotifier notifier(automation);
    EXPECT_TRUE(notifier.tell("-1G"));
    EXPECT_TRUE(other->calls().empty());
    EXPECT_EQ(first->calls(), (Calls{{"Do", "-1G"}}));
    EXPECT_TRUE(second->calls().empty());
    // The walk stops at the match.
    EXPECT_EQ(after->reads(), 0);
    EXPECT_EQ(automation.attachRequests(), std::vector<std::string>{"MapInfo.Application"});
}

TEST(AutomationNotifierWalk, NameMustMatchWhollyAfterUpperCasing) {
    MemoryAutomation automation;
    const auto near1 = application("GRIDTINT.MBX ");
    const auto near2 = application("C:\\apps\\GRIDTINT.MBX");
    const auto near3 = application("GRIDTINT");
    runHost(automation, {near1, near2, near3});
    EXPECT_FALSE(AutomationNotifier(automation).tell("0G"));
    for (const auto& item : {near1, near2, near3})
        EXPECT_TRUE(item->calls().empty());
}

TEST(AutomationNotifierWalk, NoHostNoCollectionOrAFailingCallIsNotFound) {
    MemoryAutomation noHost;
    EXPECT_FALSE(AutomationNotifier(noHost).tell("0G"));

    MemoryAutomation emptyHost;
    runHost(emptyHost, {});
    EXPECT_FALSE(AutomationNotifier(emptyHost).tell("0G"));

    MemoryAutomation withoutCollection;
    withoutCollection.run("MapInfo.Application", std::make_shared<MemoryObject>());
    EXPECT_FALSE(AutomationNotifier(withoutCollection).tell("0G"));

    MemoryAutomation brokenDo;
    const auto app = application("gridtint.mbx");
    app->failOn("Do");
    runHost(brokenDo, {app});
    EXPECT_FALSE(AutomationNotifier(brokenDo).tell("0G"));

    // A host registered under another name is never attached to.
    MemoryAutomation otherProgram;
    otherProgram.run("MapInfo.Application.x64", application("GRIDTINT.MBX"));
    EXPECT_FALSE(AutomationNotifier(otherProgram).tell("0G"));
}

TEST(AutomationNotifierWalk, WithoutAutomationAttachingFails) {
    UnavailableAutomation unavailable;
    EXPECT_EQ(unavailable.attach("MapInfo.Application"), nullptr);
#ifndef _WIN32
    EXPECT_EQ(makeSystemAutomation()->attach("MapInfo.Application"), nullptr);
#endif
}

TEST(AutomationNotifierSession, DefinedTableReachesTheHostApplication) {
    testing::ScratchFolder folder;
    testing::ServiceRecorder services;
    folder.write("col.tmp", "1,1\n");
    folder.write("lut.tmp", "1,1\n");
    MemoryAutomation automation;
    const auto app = application("GRIDTINT.MBX");
    runHost(automation, {app});
    AutomationNotifier notifier(automation);
    HostSession session(folder.file(""), notifier);
    ASSERT_TRUE(session.start().has_value());
    session.answerDefined([](float) { return 0x0000FF; });
    EXPECT_EQ(app->calls(), (Calls{{"Do", "0G"}}));
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
}

TEST(AutomationNotifierSession, MissingHostIsAProblemMessage) {
    testing::ScratchFolder folder;
    testing::ServiceRecorder services;
    folder.write("col.tmp", "1,1\n");
    folder.write("lut.tmp", "1,1\n");
    UnavailableAutomation automation;
    AutomationNotifier notifier(automation);
    HostSession session(folder.file(""), notifier);
    ASSERT_TRUE(session.start().has_value());
    session.answerDefined([](float) { return 0; });
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Unable to find MapInfo application running");
    EXPECT_EQ(services.messages()[0].title, "Problem");
    EXPECT_EQ(services.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
}

} // namespace
} // namespace huebase
