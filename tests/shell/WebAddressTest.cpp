// SPDX-License-Identifier: MIT
#include "shell/WebAddress.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(HostName, isThePartBetweenSchemeAndPath)
{
    EXPECT_EQ(hostName("https://fadeloom.example"), "fadeloom.example");
    EXPECT_EQ(hostName("https://fadeloom.example/a/page?b#c"), "fadeloom.example");
    EXPECT_EQ(hostName("http://me@127.0.0.1:8080/"), "127.0.0.1");
    EXPECT_EQ(hostName("https://fadeloom.example?a=b@c"), "fadeloom.example");
}

TEST(HostName, isEmptyIfThereIsNone)
{
    EXPECT_EQ(hostName(""), "");
    EXPECT_EQ(hostName("fadeloom.example"), "");
    EXPECT_EQ(hostName("file:///etc"), "");
}

TEST(PageURL, isTheBaseWithThePath)
{
    EXPECT_EQ(pageURL("https://fadeloom.example", "/version.json"), "https://fadeloom.example/version.json");
    EXPECT_EQ(pageURL("https://fadeloom.example/app/", "/version.json"),
        "https://fadeloom.example/app/version.json");
}

}  // namespace
}  // namespace fadeloom
