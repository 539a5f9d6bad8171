// SPDX-License-Identifier: MIT
#include "ui/DisplayName.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

std::optional<std::string> installed(const std::string& bundleID)
{
    return bundleID == "unheard.of" ? std::nullopt : std::optional<std::string>("Installed.app");
}

TEST(DisplayName, theRememberedNameComesFirst)
{
    SettingsData settings;
    const auto known = *FocusSettings::knownNames().begin();
    settings.knownAppNames[known.first] = "Remembered";

    EXPECT_EQ(displayName(settings, known.first, installed), "Remembered");
    EXPECT_EQ(displayName({}, known.first, installed), known.second);
}

TEST(DisplayName, theSystemsNameLosesItsEnding)
{
    EXPECT_EQ(displayName({}, "some.app", installed), "Installed");
}

TEST(DisplayName, anUnknownAppIsCalledByItsIdentifier)
{
    EXPECT_EQ(displayName({}, "unheard.of", installed), "unheard.of");
    EXPECT_EQ(displayName({}, "unheard.of", {}), "unheard.of");
}

}  // namespace
}  // namespace fadeloom
