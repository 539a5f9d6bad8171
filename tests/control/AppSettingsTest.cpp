// SPDX-License-Identifier: MIT
#include "control/AppSettings.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(AppSettings, unprocessedAppsDoNotWaitForATap)
{
    SettingsData settings;
    settings.apps["loud"] = {.volume = 1.5F};
    settings.apps["equalized"] = {.eqEnabled = true};
    settings.apps["muted"] = {.muted = true};
    settings.apps["quiet"] = {.volume = 0.99F};
    settings.apps["elsewhere"] = {.outputUID = "headphones"};

    EXPECT_EQ(appsToHold(settings), (std::set<std::string>{"elsewhere", "muted", "quiet"}));
}

}  // namespace
}  // namespace fadeloom
