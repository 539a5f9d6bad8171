// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedHttpClient.h"

#include "platform/simulated/SimulatedMainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SimulatedHttpClientTest : public ::testing::Test {
protected:
    void ask(const std::string& url)
    {
        http->get({.url = url, .userAgent = "Test/1", .largestBody = 10}, [this, url](const auto& response) {
            answers.push_back(url + " " + (response ? std::to_string(response->status) : "nothing"));
            body = response ? response->body : "";
        });
    }

    SimulatedClock clock;
    SimulatedMainLoop loop{clock};
    std::optional<SimulatedHttpClient> http{loop};
    std::vector<std::string> answers;
    std::string body;
};

TEST_F(SimulatedHttpClientTest, aRequestIsOpenUntilItIsAnswered)
{
    ask("one");
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_EQ(http->openRequests(), 1U);

    http->answer(404, "not here");

    EXPECT_THAT(answers, ElementsAre("one 404"));
    EXPECT_EQ(body, "not here");
    EXPECT_EQ(http->openRequests(), 0U);
    EXPECT_EQ(http->requests().at(0).userAgent, "Test/1");
}

TEST_F(SimulatedHttpClientTest, requestsAreAnsweredInAnyOrder)
{
    ask("one");
    ask("two");

    http->answer(200, "", 1);
    http->cutOff();

    EXPECT_THAT(answers, ElementsAre("two 200", "one nothing"));
}

TEST_F(SimulatedHttpClientTest, timesOut)
{
    ask("one");

    loop.advance(14'999ms);
    EXPECT_THAT(answers, IsEmpty());
    loop.advance(1ms);

    EXPECT_THAT(answers, ElementsAre("one nothing"));
}

TEST_F(SimulatedHttpClientTest, aResponseThatIsTooLargeIsDiscarded)
{
    ask("one");
    ask("two");

    http->answer(200, std::string(10, 'x'));
    http->answer(200, std::string(11, 'x'));

    EXPECT_THAT(answers, ElementsAre("one 200", "two nothing"));
}

TEST_F(SimulatedHttpClientTest, offlineEveryRequestFailsWithoutDelay)
{
    http->goOffline();

    ask("one");
    EXPECT_THAT(answers, IsEmpty());
    loop.advance(0ms);

    EXPECT_THAT(answers, ElementsAre("one nothing"));
}

TEST_F(SimulatedHttpClientTest, itsRequestsEndWithIt)
{
    ask("one");

    http.reset();
    loop.advance(1h);

    EXPECT_THAT(answers, IsEmpty());
    EXPECT_EQ(loop.timerCount(), 0);
}

}  // namespace
}  // namespace fadeloom
