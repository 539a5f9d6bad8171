// SPDX-License-Identifier: MIT
// docs/calls.md has the source of each identifier.
#include "platform/linux/CallAppCatalogue.h"

#include <array>

namespace fadeloom {
namespace {

template <typename... Texts>
constexpr auto list(Texts... texts)
{
    return std::array<std::string_view, sizeof...(Texts)>{texts...};
}

constexpr auto zoom = list("us.zoom.Zoom", "Zoom", "zoom-client_zoom-client");
constexpr auto zoomSites = list("zoom.us", "zoom.com");
constexpr auto teams = list("com.github.IsmaelMartinez.teams_for_linux", "teams-for-linux",
    "teams-for-linux_teams-for-linux", "teams");
constexpr auto teamsSites = list("teams.microsoft.com", "teams.live.com", "teams.cloud.microsoft");
constexpr auto teamsWeb = list("cifhbcnohmdccbgoicgdjpfamggdegmo");
constexpr auto meet = list("chrome-kjgfgldnnfoeklkmfkjfagphfepbbdan-Default");
constexpr auto meetSites = list("meet.google.com");
constexpr auto meetWeb = list("kjgfgldnnfoeklkmfkjfagphfepbbdan");
constexpr auto discord = list("com.discordapp.Discord", "discord", "discord_discord",
    "com.discordapp.DiscordCanary", "dev.vencord.Vesktop");
constexpr auto discordSites = list("discord.com");
constexpr auto discordWeb = list("magkoliahgffibhgfkmoealggombgknl");
constexpr auto slack = list("com.slack.Slack", "slack", "slack_slack");
constexpr auto slackSites = list("app.slack.com");
constexpr auto webex = list("webex");
constexpr auto webexSites = list("webex.com");
constexpr auto whatsApp = list("com.rtosta.zapzap", "com.ktechpit.whatsie",
    "com.github.eneshecan.WhatsAppForLinux", "whatsapp-for-linux", "io.github.tobagin.karere");
constexpr auto whatsAppSites = list("web.whatsapp.com");
constexpr auto whatsAppWeb = list("hnpfjngllnobngcgfapefoaidbinmjnm");
constexpr auto signal = list("org.signal.Signal", "signal-desktop", "signal-desktop_signal-desktop");
constexpr auto telegram =
    list("org.telegram.desktop", "telegramdesktop", "telegram-desktop_telegram-desktop");
constexpr auto telegramSites = list("web.telegram.org");
constexpr auto element = list("im.riot.Riot", "element-desktop");
constexpr auto elementSites = list("app.element.io");
constexpr auto jitsi = list("org.jitsi.jitsi-meet", "jitsi-meet");
constexpr auto jitsiSites = list("meet.jit.si");
constexpr auto mumble = list("info.mumble.Mumble", "mumble");
constexpr auto teamSpeak = list("com.teamspeak.TeamSpeak", "com.teamspeak.TeamSpeak3", "teamspeak3");
constexpr auto jami = list("net.jami.Jami", "jami-qt");
constexpr auto linphone = list("com.belledonnecommunications.linphone", "linphone");
constexpr auto ferdium = list("org.ferdium.Ferdium", "ferdium");
constexpr auto dino = list("im.dino.Dino");
constexpr auto calls = list("org.gnome.Calls");
constexpr auto skype = list("com.skype.Client", "skypeforlinux", "skype_skypeforlinux");
constexpr auto skypeSites = list("web.skype.com");

constexpr std::array catalogue = {
    KnownCallApp{"Zoom", zoom, zoomSites, {}},
    KnownCallApp{"Microsoft Teams", teams, teamsSites, teamsWeb},
    KnownCallApp{"Google Meet", meet, meetSites, meetWeb},
    KnownCallApp{"Discord", discord, discordSites, discordWeb},
    KnownCallApp{"Slack", slack, slackSites, {}},
    KnownCallApp{"Webex", webex, webexSites, {}},
    KnownCallApp{"WhatsApp", whatsApp, whatsAppSites, whatsAppWeb},
    KnownCallApp{"Signal", signal, {}, {}},
    KnownCallApp{"Telegram", telegram, telegramSites, {}},
    KnownCallApp{"Element", element, elementSites, {}},
    KnownCallApp{"Jitsi Meet", jitsi, jitsiSites, {}},
    KnownCallApp{"Mumble", mumble, {}, {}},
    KnownCallApp{"TeamSpeak", teamSpeak, {}, {}},
    KnownCallApp{"Jami", jami, {}, {}},
    KnownCallApp{"Linphone", linphone, {}, {}},
    KnownCallApp{"Ferdium", ferdium, {}, {}},
    KnownCallApp{"Dino", dino, {}, {}},
    KnownCallApp{"Calls", calls, {}, {}},
    KnownCallApp{"Skype", skype, skypeSites, {}},
};

}  // namespace

std::span<const KnownCallApp> callAppCatalogue()
{
    return catalogue;
}

}  // namespace fadeloom
