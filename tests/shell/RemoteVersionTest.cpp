// SPDX-License-Identifier: MIT
#include "shell/RemoteVersion.h"

#include <gtest/gtest.h>

#include <string>

namespace fadeloom {
namespace {

TEST(RemoteVersion, isAnObjectWithATextAndAnInteger)
{
    EXPECT_EQ(decodeRemoteVersion(R"({"version": "1.4", "build": 42})"), (RemoteVersion{"1.4", 42}));
    EXPECT_EQ(decodeRemoteVersion(R"({"build":-1,"version":"","notes":["more"]})"), (RemoteVersion{"", -1}));
    EXPECT_EQ(decodeRemoteVersion(R"({"version": "żółw", "build": 9223372036854775807})"),
        (RemoteVersion{"żółw", 9223372036854775807}));
}

class UnreadableFeedTest : public testing::TestWithParam<const char*> { };

TEST_P(UnreadableFeedTest, isNothing)
{
    EXPECT_EQ(decodeRemoteVersion(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Types, UnreadableFeedTest,
    testing::Values(R"({"version": "1.4", "build": "42"})", R"({"version": 1.4, "build": 42})",
        R"({"version": "1.4", "build": 42.0})", R"({"version": "1.4", "build": 4e1})",
        R"({"version": "1.4", "build": true})", R"({"version": "1.4", "build": null})",
        R"({"version": null, "build": 42})", R"({"version": "1.4", "build": 9223372036854775808})",
        R"({"version": "1.4", "build": 99999999999999999999999})"));

INSTANTIATE_TEST_SUITE_P(Keys, UnreadableFeedTest,
    testing::Values(R"({"version": "1.4"})", R"({"build": 42})", R"({"Version": "1.4", "Build": 42})", "{}"));

INSTANTIATE_TEST_SUITE_P(Form, UnreadableFeedTest,
    testing::Values("", "null", "42", "[]", R"([{"version": "1.4", "build": 42}])",
        R"({"version": "1.4", "build": 42)", R"({"version": "1.4", "build": 42} more)",
        "{\"version\": \"\xFF\", \"build\": 42}", "<html></html>"));

TEST(RemoteVersion, survivesDeepNesting)
{
    EXPECT_EQ(decodeRemoteVersion(std::string(60'000, '[')), std::nullopt);
    EXPECT_EQ(decodeRemoteVersion(std::string(30'000, '[') + std::string(30'000, ']')), std::nullopt);
}

}  // namespace
}  // namespace fadeloom
