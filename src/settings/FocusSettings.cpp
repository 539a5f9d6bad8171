// SPDX-License-Identifier: MIT
#include "settings/FocusSettings.h"

#include <array>

namespace fadeloom {

namespace {

struct CallApp {
    const char* bundleID;
    const char* name;
};

constexpr std::array callAppCatalogue = {
    CallApp{"us.zoom.xos", "Zoom"},
    CallApp{"com.microsoft.teams2", "Microsoft Teams"},
    CallApp{"com.microsoft.teams", "Microsoft Teams (classic)"},
    CallApp{"com.apple.FaceTime", "FaceTime"},
    CallApp{"com.hnc.Discord", "Discord"},
    CallApp{"com.tinyspeck.slackmacgap", "Slack"},
    CallApp{"Cisco-Systems.Spark", "Webex"},
    CallApp{"com.skype.skype", "Skype"},
    CallApp{"net.whatsapp.WhatsApp", "WhatsApp"},
    CallApp{"org.whispersystems.signal-desktop", "Signal"},
    CallApp{"com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan", "Google Meet"},
};

}  // namespace

const std::vector<std::string>& FocusSettings::defaultCallApps()
{
    static const std::vector<std::string> bundleIDs = [] {
        std::vector<std::string> result;
        for (const auto& app : callAppCatalogue)
            result.emplace_back(app.bundleID);
        return result;
    }();
    return bundleIDs;
}

const std::map<std::string, std::string>& FocusSettings::knownNames()
{
    static const std::map<std::string, std::string> names = [] {
        std::map<std::string, std::string> result;
        for (const auto& app : callAppCatalogue)
            result.emplace(app.bundleID, app.name);
        return result;
    }();
    return names;
}

}  // namespace fadeloom
