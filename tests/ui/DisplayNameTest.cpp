// SPDX-License-Identifier: MIT
#include "ui/DisplayName.h"

#include "platform/simulated/SimulatedCallApps.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

std::optional<std::string> installed(const std::string& bundleID)
{
    return bundleID == "unheard.of" ? std::nullopt : std::optional<std::string>("Installed.app");
}

const SimulatedCallApps callApps;

TEST(DisplayName, theRememberedNameComesFirst)
{
    SettingsData settings;
    settings.knownAppNames["com.example.meet"] = "Remembered";

    EXPECT_EQ(displayName(settings, callApps, "com.example.meet", installed), "Remembered");
    EXPECT_EQ(displayName({}, callApps, "com.example.meet", installed), "Meet");
    EXPECT_EQ(displayName({}, callApps, "com.example.meet.sandboxed", installed), "Meet");
}

TEST(DisplayName, theSystemsNameLosesItsExtension)
{
    EXPECT_EQ(displayName({}, callApps, "some.app", installed), "Installed");
}

TEST(DisplayName, anUnknownAppIsShownByItsIdentifier)
{
    EXPECT_EQ(displayName({}, callApps, "unheard.of", installed), "unheard.of");
    EXPECT_EQ(displayName({}, callApps, "unheard.of", {}), "unheard.of");
}

}  // namespace
}  // namespace fadeloom
