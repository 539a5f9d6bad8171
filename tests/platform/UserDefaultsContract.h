// SPDX-License-Identifier: MIT
// The contract of preferences, as tests over an implementation.
//
//      INSTANTIATE_TEST_SUITE_P(Qt, UserDefaultsContract, ::testing::Values(&makeQtDefaultsWorld));
#pragma once

#include "platform/UserDefaults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

class ContractDefaultsWorld {
public:
    virtual ~ContractDefaultsWorld() = default;
    virtual UserDefaults& defaults() = 0;
};

using ContractDefaultsWorldFactory = std::unique_ptr<ContractDefaultsWorld> (*)();

class UserDefaultsContract : public ::testing::TestWithParam<ContractDefaultsWorldFactory> {
protected:
    using List = std::vector<std::string>;

    std::unique_ptr<ContractDefaultsWorld> world = GetParam()();
    UserDefaults& defaults = world->defaults();
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(UserDefaultsContract);

TEST_P(UserDefaultsContract, whatWasNeverSetIsAbsent)
{
    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
}

TEST_P(UserDefaultsContract, listsAreKeptInTheirOrder)
{
    defaults.setStringList("Colours", {"red", "blue"});

    EXPECT_EQ(defaults.stringList("Colours"), (List{"red", "blue"}));
}

TEST_P(UserDefaultsContract, aListOfOneIsAList)
{
    defaults.setStringList("Colours", {"red"});

    EXPECT_EQ(defaults.stringList("Colours"), List{"red"});
}

TEST_P(UserDefaultsContract, anEmptyListIsNotAbsent)
{
    defaults.setStringList("Colours", {});

    EXPECT_EQ(defaults.stringList("Colours"), List{});
}

TEST_P(UserDefaultsContract, anyTextIsKept)
{
    const List texts = {"", " a, b ", "\"quoted\"", "@Invalid()", "żółty\n;=%"};
    defaults.setStringList("Colours", texts);

    EXPECT_EQ(defaults.stringList("Colours"), texts);
}

TEST_P(UserDefaultsContract, aNewListReplacesTheOld)
{
    defaults.setStringList("Colours", {"red", "blue"});
    defaults.setStringList("Colours", {"green"});

    EXPECT_EQ(defaults.stringList("Colours"), List{"green"});
}

TEST_P(UserDefaultsContract, whatIsRemovedIsAbsentAndNothingElseIs)
{
    defaults.setStringList("Colours", {"red"});
    defaults.setStringList("Sizes", {"small"});

    defaults.remove("Colours");
    defaults.remove("Weights");

    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
    EXPECT_EQ(defaults.stringList("Sizes"), List{"small"});
}

}  // namespace fadeloom
