// SPDX-License-Identifier: MIT
// Applications as reported by AppKit, and the owner of a process.
#include "control/AppResolver.h"
#include "control/AudioPermission.h"
#include "platform/macos/AppKitWorkspace.h"
#include "tests/macos/DesktopStage.h"
#include "tests/macos/doubles/Services.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <iterator>

namespace fadeloom {
namespace {

using doubles::launch;
using doubles::responsiblePids;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacOSWorkspace : public DesktopStage {
protected:
    ~MacOSWorkspace() override { responsiblePids().clear(); }

    static std::string contentOf(const std::filesystem::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::string ownerOf(ProcessID pid, const std::string& bundleID = "")
    {
        const auto owner = AppResolver(workspace).owningApp(pid, bundleID, workspace.runningApplications());
        return owner ? owner->localizedName.value_or("?") : "nobody";
    }

    TemporaryFolder folder;
    std::filesystem::path iconFolder = folder.path() / "icons";
    AppKitWorkspace workspace{iconFolder};
};

TEST_F(MacOSWorkspace, describesARunningApplication)
{
    launch("Music", 501, "/Applications/Music.app/");

    const auto running = workspace.runningApplications();

    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(running[0].pid, 501);
    EXPECT_EQ(running[0].bundleID, "com.example.Music");
    EXPECT_EQ(running[0].bundleLocation, "/Applications/Music.app");
    EXPECT_EQ(running[0].localizedName, "Music");
    EXPECT_EQ(running[0].activationPolicy, ActivationPolicy::regular);
    EXPECT_NE(running[0].launchMark, 0U);
    EXPECT_EQ(workspace.runningApplication(501), running[0]);
    EXPECT_EQ(workspace.runningApplication(502), std::nullopt);
}

TEST_F(MacOSWorkspace, describesAnApplicationWithMissingProperties)
{
    NSRunningApplication* bare = launch("agent", 501, "/usr/libexec/agent");
    bare.bundleIdentifier = nil;
    bare.bundleURL = nil;
    bare.localizedName = nil;
    bare.launchDate = nil;
    bare.activationPolicy = NSApplicationActivationPolicyProhibited;

    RunningApplication expected;
    expected.pid = 501;
    expected.activationPolicy = ActivationPolicy::prohibited;
    EXPECT_EQ(workspace.runningApplication(501), expected);
}

TEST_F(MacOSWorkspace, rendersRequestedIconsOnceAndOffTheMainThread)
{
    launch("Music", 501, "/Applications/Music.app");
    launch("Films", 502, "/Applications/Films.app");
    const auto running = workspace.runningApplications();
    std::vector<std::string> found;
    const auto note = [&](const AppIcon& icon) { found.push_back(contentOf(icon.file)); };

    workspace.findIcon(running[0], note);
    workspace.findIcon(running[0], note);
    EXPECT_THAT(found, IsEmpty()) << "nobody waits for a picture";
    doubles::runQueues();
    EXPECT_THAT(std::exchange(found, {}), ElementsAre("PNG of Music", "PNG of Music"));
    workspace.findIcon(running[0], note);

    EXPECT_THAT(found, ElementsAre("PNG of Music"));
    EXPECT_THAT(done(), ElementsAre("draw Music at 128"));
}

TEST_F(MacOSWorkspace, hasNoIconIfItCannotBeWritten)
{
    std::ofstream(iconFolder) << "no folder";
    launch("Music", 501, "/Applications/Music.app");
    const auto music = *workspace.runningApplication(501);

    for (int i = 0; i < 2; ++i) {
        workspace.findIcon(music, [](const AppIcon&) { ADD_FAILURE(); });
        doubles::runQueues();
    }
    desktop.applications = [NSMutableArray array];
    workspace.findIcon(music, [](const AppIcon&) { ADD_FAILURE(); });
}

TEST_F(MacOSWorkspace, findsNoIconAfterItsDestruction)
{
    launch("Music", 501, "/Applications/Music.app");
    {
        AppKitWorkspace other(folder.path() / "others");
        other.findIcon(*other.runningApplication(501), [](const AppIcon&) { ADD_FAILURE(); });
    }

    doubles::runQueues();
}

TEST_F(MacOSWorkspace, detectsAnExit)
{
    NSRunningApplication* music = launch("Music", 501, "/Applications/Music.app");
    const auto asked = *workspace.runningApplication(501);
    EXPECT_FALSE(workspace.isTerminated(asked));

    music.terminated = YES;
    EXPECT_TRUE(workspace.isTerminated(asked));
    desktop.applications = [NSMutableArray array];
    EXPECT_TRUE(workspace.isTerminated(asked));
}

TEST_F(MacOSWorkspace, detectsAnExitDespiteAReusedPid)
{
    launch("Music", 501, "/Applications/Music.app");
    const auto asked = *workspace.runningApplication(501);

    desktop.applications = [NSMutableArray array];
    launch("Films", 501, "/Applications/Films.app").launchDate =
        [NSDate dateWithTimeIntervalSince1970:1'800'000'000];

    EXPECT_TRUE(workspace.isTerminated(asked));
}

TEST_F(MacOSWorkspace, findsTheOwnerOfAProcess)
{
    launch("Music", 501, "/Applications/Music.app");
    launch("daemon", 502, "/usr/libexec/daemon");
    launch("agent", 503, "/System/agent.app").activationPolicy = NSApplicationActivationPolicyProhibited;
    responsiblePids() = {{600, 501}, {601, 0}, {602, 602}, {603, 503}};

    EXPECT_EQ(ownerOf(501), "Music");
    EXPECT_EQ(ownerOf(600), "Music");  // A helper that Music has launched.
    EXPECT_EQ(ownerOf(601), "nobody");
    EXPECT_EQ(ownerOf(602), "nobody");
    EXPECT_EQ(ownerOf(603), "nobody");
    EXPECT_EQ(ownerOf(604, "com.example.Music.helper"), "Music");
    EXPECT_EQ(ownerOf(604, "com.example.Musical"), "nobody");
    EXPECT_EQ(ownerOf(502), "nobody");
}

TEST_F(MacOSWorkspace, doesNotKnowTheResponsibleProcessIfTheSystemDoesNot)
{
    responsiblePids() = {{600, 501}};

    EXPECT_EQ(workspace.responsiblePid(600), 501);
    EXPECT_EQ(workspace.responsiblePid(601), std::nullopt);
}

TEST_F(MacOSWorkspace, recognizesABundleByItsExtension)
{
    EXPECT_TRUE(workspace.isApplicationBundle("/Applications/Music.app"));
    EXPECT_FALSE(workspace.isApplicationBundle("/usr/libexec/agent"));
    EXPECT_FALSE(workspace.isApplicationBundle("/Library/Music.bundle"));
}

TEST_F(MacOSWorkspace, namesInstalledApplications)
{
    desktop.installed = {{"com.example.calls", "/Applications/Calls.app"}};
    desktop.displayNames = {{"/Applications/Calls.app", "Anrufe.app"}};

    EXPECT_EQ(workspace.installedName("com.example.calls"), "Anrufe");
    EXPECT_EQ(workspace.installedName("com.example.nothing"), std::nullopt);
}

TEST_F(MacOSWorkspace, showsFilesAndOpensAddresses)
{
    workspace.reveal("/Users/someone/Music/Säge 1.wav");
    workspace.open("https://fadeloom.example/download.php");
    workspace.open("no address");

    EXPECT_THAT(done(),
        ElementsAre(
            "reveal file:///Users/someone/Music/Säge 1.wav", "open https://fadeloom.example/download.php"));
}

TEST_F(MacOSWorkspace, opensThePrivacySettings)
{
    workspace.open(std::string(AudioPermission::settingsURL));

    EXPECT_THAT(done(),
        ElementsAre("open x-apple.systempreferences:com.apple.preference.security?Privacy_AudioCapture"));
}

TEST_F(MacOSWorkspace, startsAnotherInstanceAndReportsOnTheMainQueue)
{
    for (const bool isRefused : {false, true}) {
        desktop.isNewInstanceRefused = isRefused;
        int reports = 0;

        workspace.openNewInstance([&] {
            ++reports;
            EXPECT_TRUE(doubles::isOnMainQueue());
        });
        EXPECT_EQ(reports, 0);
        doubles::runQueues();

        EXPECT_EQ(reports, 1);
        EXPECT_THAT(
            done(), ElementsAre("launch /Applications/Fadeloom.app once more with {FADELOOM_SUCCEEDS: 1}"));
    }
}

TEST_F(MacOSWorkspace, knowsItself)
{
    EXPECT_EQ(workspace.ownBundleID(), "com.fadeloom.app");
    EXPECT_EQ(workspace.ownPid(), ::getpid());

    desktop.ownBundle = nil;  // A bare executable.
    EXPECT_EQ(workspace.ownBundleID(), "com.fadeloom.app");
}

}  // namespace
}  // namespace fadeloom
