// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/MenuOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::ElementsAre;

std::vector<std::string> titles(const StatusMenu& menu)
{
    std::vector<std::string> result;
    for (const auto& entry : menu)
        result.push_back(entry.title);
    return result;
}

TEST(MenuOrder, movesTheClicksGroupToTheFront)
{
    const StatusMenu menu{{.title = "About"}, {}, {.title = "Open", .isClick = true}, {.title = "Settings"},
        {}, {.title = "Quit"}};

    EXPECT_THAT(titles(clickFirst(menu)), ElementsAre("Open", "Settings", "", "About", "", "Quit"));
}

TEST(MenuOrder, isUnchangedIfItIsAlreadyInFront)
{
    const StatusMenu menu{{.title = "Open", .isClick = true}, {}, {.title = "Quit"}};

    EXPECT_THAT(titles(clickFirst(menu)), ElementsAre("Open", "", "Quit"));
}

TEST(MenuOrder, ofTheLastGroupEndsWithTheOthers)
{
    const StatusMenu menu{{.title = "About"}, {}, {.title = "Open", .isClick = true}};

    EXPECT_THAT(titles(clickFirst(menu)), ElementsAre("Open", "", "About"));
}

TEST(MenuOrder, withoutAClickIsUnchanged)
{
    const StatusMenu menu{{.title = "About"}, {}, {.title = "Quit"}};

    EXPECT_THAT(titles(clickFirst(menu)), ElementsAre("About", "", "Quit"));
}

}  // namespace
}  // namespace fadeloom
