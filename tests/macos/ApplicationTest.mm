// SPDX-License-Identifier: MIT
// The application's windows: appearance, About panel, open panels, alerts.
#include "platform/macos/AppKitApplication.h"
#include "platform/macos/AppKitDialogs.h"
#include "platform/macos/AppearanceWatch.h"
#include "tests/macos/DesktopStage.h"

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using Appearance = Application::Appearance;
using Paths = std::vector<std::optional<std::filesystem::path>>;

class MacOSApplication : public DesktopStage {
protected:
    AppKitApplication own;
    AppKitDialogs dialogs;
};

TEST_F(MacOSApplication, isDrawnAsChosen)
{
    for (const auto appearance : {Appearance::dark, Appearance::light, Appearance::system})
        own.setAppearance(appearance);

    EXPECT_THAT(done(), ElementsAre("appearance dark aqua", "appearance aqua", "appearance of the system"));
}

TEST_F(MacOSApplication, followsEachAppearance)
{
    std::vector<bool> heard;
    {
        const AppearanceWatch watch([&](bool isDark) { heard.push_back(isDark); });
        EXPECT_FALSE(watch.isDark());

        own.setAppearance(Appearance::dark);
        EXPECT_TRUE(watch.isDark());
        own.setAppearance(Appearance::system);
        application().systemAppearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    }
    own.setAppearance(Appearance::light);

    EXPECT_THAT(heard, ElementsAre(true, false, true));
}

TEST_F(MacOSApplication, isActivated)
{
    own.activate();

    EXPECT_THAT(done(), ElementsAre("activate"));
}

TEST_F(MacOSApplication, showsItsCreditsCentredWithALink)
{
    own.showAboutPanel(
        {.text = "Free.", .linkText = "fadeloom.example", .linkURL = "https://fadeloom.example"});

    EXPECT_THAT(done(), ElementsAre("activate", "style all with paragraph 2", "about"));
    NSAttributedString* credits = application().aboutOptions[@"credits"];
    const auto runs = credits.runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].first, "Free.\n\n");
    EXPECT_EQ(static_cast<NSFont*>(runs[0].second[@"font"]).pointSize, 11);
    EXPECT_TRUE([runs[0].second[@"colour"] isKindOfClass:NSColor.class]);
    EXPECT_EQ(runs[1].first, "fadeloom.example");
    EXPECT_EQ(static_cast<NSFont*>(runs[1].second[@"font"]).pointSize, 11);
    EXPECT_STREQ(static_cast<NSString*>(runs[1].second[@"link"]).UTF8String, "https://fadeloom.example");
}

TEST_F(MacOSApplication, promptsForAFolder)
{
    Paths chosen;
    const auto note = [&](const auto& folder) { chosen.push_back(folder); };
    desktop.whenPanelOpens = [](NSOpenPanel* panel, const auto& answer) {
        EXPECT_TRUE(panel.canChooseDirectories);
        EXPECT_FALSE(panel.canChooseFiles);
        EXPECT_TRUE(panel.canCreateDirectories);
        EXPECT_FALSE(panel.allowsMultipleSelection);
        EXPECT_STREQ(panel.prompt.UTF8String, "Wählen");
        EXPECT_STREQ(panel.directoryURL.path.UTF8String, "/Users/someone/Music");
        panel.URLs = @[ [NSURL fileURLWithPath:@"/Volumes/Säge/"] ];
        answer(NSModalResponseOK);
        answer(NSModalResponseCancel);
    };

    dialogs.chooseFolder("/Users/someone/Music", "Wählen", note);

    EXPECT_EQ(chosen, (Paths{"/Volumes/Säge", std::nullopt}));
    EXPECT_THAT(done(), ElementsAre("activate", "panel opens"));
}

TEST_F(MacOSApplication, promptsForAnApplication)
{
    desktop.installed = {{"com.example.calls", "/Applications/Calls.app"}};
    std::vector<std::optional<std::string>> chosen;
    const auto note = [&](const auto& bundleID) { chosen.push_back(bundleID); };
    desktop.whenPanelOpens = [](NSOpenPanel* panel, const auto& answer) {
        EXPECT_FALSE(panel.canChooseDirectories);
        EXPECT_TRUE(panel.canChooseFiles);
        EXPECT_STREQ(panel.directoryURL.path.UTF8String, "/Applications");
        EXPECT_STREQ(
            panel.allowedContentTypes.firstObject.identifier.UTF8String, "com.apple.application-bundle");
        panel.URLs = @[ [NSURL fileURLWithPath:@"/Applications/Calls.app/"] ];
        answer(NSModalResponseOK);
        panel.URLs = @[ [NSURL fileURLWithPath:@"/Applications/nothing"] ];
        answer(NSModalResponseOK);
        answer(NSModalResponseCancel);
    };

    dialogs.chooseApplication(note);

    EXPECT_THAT(chosen, ElementsAre("com.example.calls", std::nullopt, std::nullopt));
}

TEST_F(MacOSApplication, showsAnAlert)
{
    std::vector<std::size_t> answers;
    const Alert alert{.title = "New version", .text = "1.2 is there.", .buttons = {"Download", "Later"}};
    const auto note = [&](std::size_t button) { answers.push_back(button); };

    for (const NSModalResponse response : {NSAlertFirstButtonReturn, NSAlertFirstButtonReturn + 1,
             NSModalResponseStop, NSAlertFirstButtonReturn + 7}) {
        desktop.alertAnswer = response;
        dialogs.showAlert(alert, note);
    }
    desktop.alertAnswer = NSAlertFirstButtonReturn;
    dialogs.showAlert({.title = "You are up to date", .text = "", .buttons = {}}, note);

    EXPECT_THAT(answers, ElementsAre(0, 1, 1, 1, 0));
    const auto lines = done();
    EXPECT_THAT(std::vector(lines.begin(), lines.begin() + 4),
        ElementsAre("button Download", "button Later", "activate", "alert New version: 1.2 is there."));
}

}  // namespace
}  // namespace fadeloom
