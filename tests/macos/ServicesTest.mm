// SPDX-License-Identifier: MIT
// The small services: login item, defaults, folders, clock, log, queues, lock.
#include "base/UnfairLock.h"
#include "platform/macos/DispatchQueue.h"
#include "platform/macos/FoundationClock.h"
#include "platform/macos/FoundationFolders.h"
#include "platform/macos/MacOSCallApps.h"
#include "platform/macos/MainAppLoginItem.h"
#include "platform/macos/PowerOffWatch.h"
#include "platform/macos/StandardUserDefaults.h"
#include "platform/macos/UnifiedLog.h"
#include "tests/macos/DesktopStage.h"
#include "tests/macos/doubles/Collections.h"
#include "tests/macos/doubles/Values.h"
#include "tests/platform/BackgroundQueueContract.h"
#include "tests/platform/UserDefaultsContract.h"

#include <mutex>
#include <thread>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Status = LoginItem::Status;

class MacOSServices : public DesktopStage { };

TEST_F(MacOSServices, loginItemHasTheStatusOfTheSystem)
{
    const MainAppLoginItem item;
    const std::vector<std::pair<SMAppServiceStatus, Status>> meanings = {
        {SMAppServiceStatusNotRegistered, Status::notRegistered},
        {SMAppServiceStatusEnabled, Status::enabled},
        {SMAppServiceStatusRequiresApproval, Status::requiresApproval},
        {SMAppServiceStatusNotFound, Status::notFound},
    };
    for (const auto& [theirs, ours] : meanings) {
        desktop.loginItem = theirs;
        EXPECT_EQ(item.status(), ours);
    }
}

TEST_F(MacOSServices, loginItemIsSwitchedOnAndOffOnce)
{
    MainAppLoginItem item;

    EXPECT_TRUE(item.registerItem());
    EXPECT_TRUE(item.registerItem());
    EXPECT_TRUE(item.unregisterItem());
    EXPECT_TRUE(item.unregisterItem());

    EXPECT_THAT(done(), ElementsAre("register", "unregister"));
}

TEST_F(MacOSServices, loginItemReportsWhyItWasRefused)
{
    MainAppLoginItem item;
    desktop.loginItemError = doubles::errorSaying(@"Der Vorgang ist nicht erlaubt.");

    const LoginItemError refused = SystemMessage{"Der Vorgang ist nicht erlaubt."};
    EXPECT_EQ(item.registerItem().error(), refused);
    desktop.loginItem = SMAppServiceStatusRequiresApproval;
    EXPECT_EQ(item.unregisterItem().error(), refused);
}

TEST_F(MacOSServices, elevenCallAppsAreKnown)
{
    const MacOSCallApps callApps;
    const std::vector<CallApp> all = {{"Zoom", {"us.zoom.xos"}},
        {"Microsoft Teams", {"com.microsoft.teams2"}}, {"Microsoft Teams (classic)", {"com.microsoft.teams"}},
        {"FaceTime", {"com.apple.FaceTime"}}, {"Discord", {"com.hnc.Discord"}},
        {"Slack", {"com.tinyspeck.slackmacgap"}}, {"Webex", {"Cisco-Systems.Spark"}},
        {"Skype", {"com.skype.skype"}}, {"WhatsApp", {"net.whatsapp.WhatsApp"}},
        {"Signal", {"org.whispersystems.signal-desktop"}},
        {"Google Meet", {"com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan"}}};

    EXPECT_EQ(callApps.knownApps(), all);
    EXPECT_TRUE(callApps.formerDefaults().empty());
    EXPECT_EQ(callApps.identifiersOf("us.zoom.xos"), std::vector<std::string>{"us.zoom.xos"});
}

TEST_F(MacOSServices, defaultsKeepALanguage)
{
    StandardUserDefaults defaults;
    EXPECT_EQ(defaults.stringList("AppleLanguages"), std::nullopt);

    defaults.setStringList("AppleLanguages", {"pl"});
    EXPECT_THAT(defaults.stringList("AppleLanguages"), ::testing::Optional(ElementsAre("pl")));
    EXPECT_EQ(doubles::described(desktop.defaults), "{AppleLanguages: [pl]}");
    defaults.remove("AppleLanguages");

    EXPECT_EQ(defaults.stringList("AppleLanguages"), std::nullopt);
}

TEST_F(MacOSServices, defaultsThatAreNotAListOfStringsAreIgnored)
{
    const StandardUserDefaults defaults;
    for (id value in @[ @"pl", @[ @"pl", @1U ], @1U, @{} ]) {
        [desktop.defaults setEntry:value forKey:@"AppleLanguages"];
        EXPECT_EQ(defaults.stringList("AppleLanguages"), std::nullopt);
    }
    [desktop.defaults setEntry:@[] forKey:@"AppleLanguages"];
    EXPECT_THAT(defaults.stringList("AppleLanguages"), ::testing::Optional(IsEmpty()));
    desktop.ownBundle = nil;  // Then there is no domain of our own.
    EXPECT_EQ(defaults.stringList("AppleLanguages"), std::nullopt);
}

TEST_F(MacOSServices, foldersAreTheUsers)
{
    const FoundationFolders folders;

    EXPECT_EQ(folders.applicationSupport(), "/Users/someone/Library/Application Support");
    EXPECT_EQ(folders.music(), "/Users/someone/Music");
    EXPECT_EQ(folders.caches(), "/Users/someone/Library/Caches");
    desktop.folders.clear();
    EXPECT_TRUE(folders.applicationSupport().empty());
}

TEST_F(MacOSServices, localTimeIsThatOfTheZoneAtThatMoment)
{
    using namespace std::chrono;
    const FoundationClock clock;
    desktop.secondsFromGMT = -4 * 3600;

    EXPECT_EQ(clock.localTime(sys_days{2024y / 7 / 1} + 12h + 30min + 999ms),
        local_days{2024y / 7 / 1} + 8h + 30min);
    EXPECT_THAT(done(), ElementsAre("zone at 741529800"));  // Seconds since 2001.
    EXPECT_EQ(
        clock.localTime(system_clock::time_point{-1ms}), local_days{1969y / 12 / 31} + 19h + 59min + 59s);
}

TEST_F(MacOSServices, logLinesCanBeRead)
{
    UnifiedLog log;

    log.write(SystemLog::Level::notice, "started 100%");
    log.write(SystemLog::Level::error, "tap failed");

    EXPECT_THAT(done(),
        ElementsAre("com.fadeloom.app engine 0 started 100%", "com.fadeloom.app engine 16 tap failed"));
}

TEST_F(MacOSServices, lockIsTheSystems)
{
    static_assert(sizeof(UnfairLock) == 4);
    UnfairLock lock;
    const std::scoped_lock guard(lock);
    bool isTaken = true;

    std::thread([&] { isTaken = lock.try_lock(); }).join();

    EXPECT_FALSE(isTaken);
}

class MacOSQueueWorld final : public ContractQueueWorld {
public:
    BackgroundQueue& queue() override { return queue_; }
    bool waitUntil(const std::function<bool()>& condition) override
    {
        for (int i = 0; i < 200 && !condition(); ++i)
            letPass(std::chrono::milliseconds(10));
        return condition();
    }
    void letPass(std::chrono::milliseconds duration) override { doubles::advanceQueues(duration); }

private:
    DispatchQueue queue_{"com.fadeloom.test"};
};

std::unique_ptr<ContractQueueWorld> makeMacOSQueueWorld()
{
    return std::make_unique<MacOSQueueWorld>();
}

class MacOSDefaultsWorld final : public ContractDefaultsWorld {
public:
    MacOSDefaultsWorld() { doubles::beginDesktop(); }
    ~MacOSDefaultsWorld() override { doubles::endDesktop(); }
    UserDefaults& defaults() override { return defaults_; }

private:
    StandardUserDefaults defaults_;
};

std::unique_ptr<ContractDefaultsWorld> makeMacOSDefaultsWorld()
{
    return std::make_unique<MacOSDefaultsWorld>();
}

TEST_F(MacOSServices, aQueueRunsInTheBackground)
{
    const DispatchQueue queue("com.fadeloom.test");

    EXPECT_EQ(doubles::lastQuality(), QOS_CLASS_UTILITY);
}

TEST_F(MacOSServices, theEndOfTheSessionIsReportedInAdvance)
{
    int ends = 0;
    {
        const PowerOffWatch watch([&] { ++ends; });
        doubles::post("default", NSWorkspaceWillPowerOffNotification);
        EXPECT_EQ(ends, 0) << "it is the workspace that tells";
        doubles::post("workspace", NSWorkspaceWillPowerOffNotification);
        EXPECT_EQ(ends, 1);
    }

    EXPECT_TRUE(desktop.observers.empty());
}

TEST_F(MacOSServices, aDestroyedQueueRunsWhatIsDueAndDropsTheRest)
{
    std::vector<int> ran;
    {
        DispatchQueue queue("com.fadeloom.test");
        queue.submit(std::chrono::milliseconds(0), [&] { ran.push_back(1); });
        queue.submit(std::chrono::milliseconds(10), [&] { ran.push_back(2); });
    }

    doubles::advanceQueues(std::chrono::seconds(1));

    EXPECT_THAT(ran, ElementsAre(1));
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(MacOS, BackgroundQueueContract, ::testing::Values(&makeMacOSQueueWorld));
INSTANTIATE_TEST_SUITE_P(MacOS, UserDefaultsContract, ::testing::Values(&makeMacOSDefaultsWorld));

}  // namespace fadeloom
