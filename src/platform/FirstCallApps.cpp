// SPDX-License-Identifier: MIT
#include "platform/FirstCallApps.h"

namespace fadeloom {

const std::vector<CallApp>& firstCallApps()
{
    static const std::vector<CallApp> apps = {
        {.name = "Zoom", .bundleIDs = {"us.zoom.xos"}},
        {.name = "Microsoft Teams", .bundleIDs = {"com.microsoft.teams2"}},
        {.name = "Microsoft Teams (classic)", .bundleIDs = {"com.microsoft.teams"}},
        {.name = "FaceTime", .bundleIDs = {"com.apple.FaceTime"}},
        {.name = "Discord", .bundleIDs = {"com.hnc.Discord"}},
        {.name = "Slack", .bundleIDs = {"com.tinyspeck.slackmacgap"}},
        {.name = "Webex", .bundleIDs = {"Cisco-Systems.Spark"}},
        {.name = "Skype", .bundleIDs = {"com.skype.skype"}},
        {.name = "WhatsApp", .bundleIDs = {"net.whatsapp.WhatsApp"}},
        {.name = "Signal", .bundleIDs = {"org.whispersystems.signal-desktop"}},
        {.name = "Google Meet", .bundleIDs = {"com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan"}},
    };
    return apps;
}

}  // namespace fadeloom
