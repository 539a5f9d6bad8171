// SPDX-License-Identifier: MIT
// All known call apps of Linux, and the web apps that count as one of them.
#include "platform/linux/LinuxCallApps.h"

#include "platform/linux/CallAppCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;

/// The documented catalogue, some of which is installed.
class LinuxCallAppsTest : public ::testing::Test {
protected:
    /// The app that a desktop entry belongs to; empty if there is none.
    std::string appOf(const std::string& id, const std::string& keys)
    {
        auto entry = parseDesktopEntry("[Desktop Entry]\nType=Application\n" + keys, {});
        entry->id = id;
        installed[id] = *entry;
        const auto identifiers = callApps.identifiersOf(id);
        EXPECT_EQ(identifiers.front(), id);
        const auto* const app =
            identifiers.size() < 2 ? nullptr : callAppWith(callApps.knownApps(), identifiers[1]);
        return app == nullptr ? "" : app->name;
    }

    std::map<std::string, DesktopEntry> installed;
    LinuxCallApps callApps{[this](const std::string& id) {
        const auto found = installed.find(id);
        return found == installed.end() ? std::nullopt : std::optional(found->second);
    }};
};

TEST_F(LinuxCallAppsTest, areTheDocumentedOnes)
{
    const std::vector<CallApp> all = {
        {"Zoom", {"us.zoom.Zoom", "Zoom", "zoom-client_zoom-client"}},
        {"Microsoft Teams",
            {"com.github.IsmaelMartinez.teams_for_linux", "teams-for-linux",
                "teams-for-linux_teams-for-linux", "teams"}},
        {"Google Meet", {"chrome-kjgfgldnnfoeklkmfkjfagphfepbbdan-Default"}},
        {"Discord",
            {"com.discordapp.Discord", "discord", "discord_discord", "com.discordapp.DiscordCanary",
                "dev.vencord.Vesktop"}},
        {"Slack", {"com.slack.Slack", "slack", "slack_slack"}},
        {"Webex", {"webex"}},
        {"WhatsApp",
            {"com.rtosta.zapzap", "com.ktechpit.whatsie", "com.github.eneshecan.WhatsAppForLinux",
                "whatsapp-for-linux", "io.github.tobagin.karere"}},
        {"Signal", {"org.signal.Signal", "signal-desktop", "signal-desktop_signal-desktop"}},
        {"Telegram", {"org.telegram.desktop", "telegramdesktop", "telegram-desktop_telegram-desktop"}},
        {"Element", {"im.riot.Riot", "element-desktop"}},
        {"Jitsi Meet", {"org.jitsi.jitsi-meet", "jitsi-meet"}},
        {"Mumble", {"info.mumble.Mumble", "mumble"}},
        {"TeamSpeak", {"com.teamspeak.TeamSpeak", "com.teamspeak.TeamSpeak3", "teamspeak3"}},
        {"Jami", {"net.jami.Jami", "jami-qt"}},
        {"Linphone", {"com.belledonnecommunications.linphone", "linphone"}},
        {"Ferdium", {"org.ferdium.Ferdium", "ferdium"}},
        {"Dino", {"im.dino.Dino"}},
        {"Calls", {"org.gnome.Calls"}},
        {"Skype", {"com.skype.Client", "skypeforlinux", "skype_skypeforlinux"}},
    };

    EXPECT_EQ(callApps.knownApps(), all);
    EXPECT_EQ(&callApps.knownApps(), &callApps.knownApps()) << "made once";
}

TEST_F(LinuxCallAppsTest, eachIdentifierIsOfOneApp)
{
    std::set<std::string> seen;
    for (const auto& app : callApps.knownApps()) {
        for (const auto& id : app.bundleIDs) {
            EXPECT_TRUE(seen.insert(id).second) << id;
            EXPECT_EQ(callApps.identifiersOf(id).size(), app.bundleIDs.size());
        }
    }
}

TEST_F(LinuxCallAppsTest, anInstalledAppIsTheSameAsItsFlatpak)
{
    EXPECT_THAT(
        callApps.identifiersOf("Zoom"), ElementsAre("Zoom", "us.zoom.Zoom", "zoom-client_zoom-client"));
    EXPECT_THAT(callApps.identifiersOf("org.example.Player"), ElementsAre("org.example.Player"));
}

TEST_F(LinuxCallAppsTest, theFormerDefaultsMatchNothingInstalled)
{
    EXPECT_THAT(callApps.formerDefaults(),
        ElementsAre("us.zoom.xos", "com.microsoft.teams2", "com.microsoft.teams", "com.apple.FaceTime",
            "com.hnc.Discord", "com.tinyspeck.slackmacgap", "Cisco-Systems.Spark", "com.skype.skype",
            "net.whatsapp.WhatsApp", "org.whispersystems.signal-desktop",
            "com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan"));
    for (const auto& id : callApps.formerDefaults())
        EXPECT_EQ(callAppWith(callApps.knownApps(), id), nullptr) << id;
}

TEST_F(LinuxCallAppsTest, aChromiumWebAppIsRecognizedByItsIdentifierInTheBrowser)
{
    EXPECT_EQ(appOf("brave-cifhbcnohmdccbgoicgdjpfamggdegmo-Default",
                  "Exec=/opt/brave.com/brave/brave-browser --profile-directory=Default "
                  "--app-id=cifhbcnohmdccbgoicgdjpfamggdegmo\n"),
        "Microsoft Teams");
    EXPECT_EQ(appOf("com.google.Chrome.flextop.chrome-magkoliahgffibhgfkmoealggombgknl-Profile_1",
                  "Exec=flatpak run com.google.Chrome --app-id=magkoliahgffibhgfkmoealggombgknl\n"),
        "Discord");
    EXPECT_EQ(appOf("chrome-hnpfjngllnobngcgfapefoaidbinmjnm-Default",
                  "Exec=x --app-id=hnpfjngllnobngcgfapefoaidbinmjnm\n"),
        "WhatsApp");
    EXPECT_EQ(appOf("msedge-kjgfgldnnfoeklkmfkjfagphfepbbdan-Default",
                  "Exec=x --app-id=kjgfgldnnfoeklkmfkjfagphfepbbdan\n"),
        "Google Meet");
    EXPECT_EQ(appOf("chrome-abc-Default", "Exec=chrome --app-id=abc\n"), "");
}

TEST_F(LinuxCallAppsTest, aWebAppIsRecognizedByItsSite)
{
    EXPECT_EQ(appOf("a", "Exec=chromium --app=https://meet.google.com/landing\n"), "Google Meet");
    EXPECT_EQ(
        appOf("b", "Exec=sh -c 'firefox --profile p https://x'\nX-WebApp-URL=https://teams.live.com/v2\n"),
        "Microsoft Teams");
    EXPECT_EQ(appOf("c", "Exec=firefox-meet \"https://meet.jit.si/Room\"\n"), "Jitsi Meet");
    EXPECT_EQ(appOf("d", "Exec=x https://acme.webex.com/meet/anna\n"), "Webex") << "a subdomain";
    EXPECT_EQ(appOf("e", "Exec=x https://notzoom.us/\n"), "") << "not a subdomain";
    EXPECT_EQ(appOf("f", "Exec=x https://zoom.us.example.org/\n"), "");
    EXPECT_EQ(appOf("g", "Exec=browser %u\n"), "");
}

TEST_F(LinuxCallAppsTest, aFirefoxWebAppIsRecognizedByItsActionsOrItsName)
{
    const std::string launch = "Exec=/usr/bin/firefoxpwa site launch 01H --protocol %u\n";

    EXPECT_EQ(appOf("FFPWA-01H",
                  "Name=Calls\n" + launch
                      + "[Desktop Action 0]\n"
                        "Exec=/usr/bin/firefoxpwa site launch 01H --url \"https://app.slack.com/client\"\n"),
        "Slack");
    EXPECT_EQ(appOf("FFPWA-01J", "Name=Google Meet\n" + launch), "Google Meet");
    EXPECT_EQ(appOf("FFPWA-01K", "Name=Notes\n" + launch), "");
    EXPECT_EQ(appOf("org.example.Meet", "Name=Google Meet\nExec=meet\n"), "") << "no web app";
}

}  // namespace
}  // namespace fadeloom
