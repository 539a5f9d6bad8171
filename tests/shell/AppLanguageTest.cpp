// SPDX-License-Identifier: MIT
#include "shell/AppLanguage.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppLanguageTest : public ::testing::Test {
protected:
    void store(const std::vector<std::string>& codes) { defaults.setStringList("AppleLanguages", codes); }

    SimulatedPlatform world{"/some/folder"};
    SimulatedUserDefaults& defaults = world.userDefaults();
};

TEST_F(AppLanguageTest, theChoicesAreInTheirOrderWithTheirOwnNames)
{
    using AppLanguage::Choice;
    using testing::FieldsAre;

    EXPECT_THAT(AppLanguage::choices,
        ElementsAre(FieldsAre("system", ""), FieldsAre("en", "English"), FieldsAre("pl", "Polski")));
}

TEST_F(AppLanguageTest, withoutAChoiceItIsTheSystems)
{
    EXPECT_EQ(AppLanguage::current(defaults), "system");
    EXPECT_THAT(AppLanguage::preferred(defaults), IsEmpty());
}

TEST_F(AppLanguageTest, aChoiceIsStoredAsAListOfOne)
{
    AppLanguage::set(defaults, "pl");

    EXPECT_EQ(defaults.stringList("AppleLanguages"), std::vector<std::string>{"pl"});
    EXPECT_EQ(AppLanguage::current(defaults), "pl");
    EXPECT_THAT(AppLanguage::preferred(defaults), ElementsAre("pl"));
}

TEST_F(AppLanguageTest, choosingTheSystemRemovesTheKey)
{
    AppLanguage::set(defaults, "pl");

    AppLanguage::set(defaults, "system");

    EXPECT_EQ(defaults.stringList("AppleLanguages"), std::nullopt);
    EXPECT_EQ(AppLanguage::current(defaults), "system");
}

TEST_F(AppLanguageTest, aForeignLanguageReadsAsTheSystemButIsStillPreferred)
{
    for (const auto* const code : {"de", "pl-PL", "EN", ""}) {
        store({code, "pl"});

        EXPECT_EQ(AppLanguage::current(defaults), "system") << code;
        EXPECT_THAT(AppLanguage::preferred(defaults), ElementsAre(code, "pl"));
    }
}

TEST_F(AppLanguageTest, onlyTheFirstOfAListIsTheChoice)
{
    store({"en", "pl"});

    EXPECT_EQ(AppLanguage::current(defaults), "en");
}

TEST_F(AppLanguageTest, aListWithoutALanguageIsNotAChoice)
{
    store({});
    EXPECT_EQ(AppLanguage::current(defaults), "system");

    store({"system"});
    EXPECT_EQ(AppLanguage::current(defaults), "system");
    EXPECT_THAT(AppLanguage::preferred(defaults), IsEmpty());
}

TEST_F(AppLanguageTest, theSystemsLanguageIsPreferredWhereItComesFirst)
{
    store({"system", "pl"});
    EXPECT_THAT(AppLanguage::preferred(defaults), IsEmpty());

    store({"pl", "system"});
    EXPECT_THAT(AppLanguage::preferred(defaults), ElementsAre("pl", "system"));
}

TEST_F(AppLanguageTest, theOldInstanceEndsOnceTheNewOneWasReported)
{
    int ends = 0;
    AppLanguage::relaunch(world.workspace(), [&] { ++ends; });
    EXPECT_EQ(world.workspace().newInstances(), 1);
    EXPECT_EQ(ends, 0);

    world.workspace().reportStarts();

    EXPECT_EQ(ends, 1);
}

TEST_F(AppLanguageTest, theOldInstanceEndsAlsoWhenTheNewOneFailedToStart)
{
    int ends = 0;
    world.workspace().failToStart();

    AppLanguage::relaunch(world.workspace(), [&] { ++ends; });
    world.workspace().reportStarts();

    EXPECT_EQ(world.workspace().newInstances(), 0);
    EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace fadeloom
