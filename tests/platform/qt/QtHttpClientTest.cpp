// SPDX-License-Identifier: MIT
// Requests to a real server over the loopback interface.
#include "tests/platform/qt/HttpClientStage.h"

#include <QLocale>

namespace fadeloom {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class QtHttpClientTest : public HttpClientStage { };

TEST(HttpRequest, defaultsToFifteenSecondsAndSixtyFourKibibytes)
{
    EXPECT_EQ(HttpRequest{}.timeout, 15s);
    EXPECT_EQ(HttpRequest{}.largestBody, 65536U);
}

TEST_F(QtHttpClientTest, getsAPage)
{
    EXPECT_EQ(statusOf(server.url("/page")), 200);
    EXPECT_EQ(body, "the page");
}

TEST_F(QtHttpClientTest, sendsOnlyItsUserAgent)
{
    QLocale::setDefault(QLocale(QLocale::Polish));

    statusOf(server.url("/page"));

    EXPECT_THAT(server.requests().at(0),
        AllOf(StartsWith("GET /page HTTP/1.1\r\n"), HasSubstr("\r\nuser-agent: Fadeloom/42\r\n"),
            Not(HasSubstr("pl")), Not(HasSubstr("\ncookie"))));
}

TEST_F(QtHttpClientTest, bypassesEveryCache)
{
    statusOf(server.url("/cookie"));
    ask(server.url("/cookie"));
    waitUntil([&] { return statuses.size() == 2; });

    ASSERT_EQ(server.requests().size(), 2U);
    EXPECT_THAT(server.requests().at(1),
        AllOf(HasSubstr("\r\ncache-control: no-cache\r\n"), Not(HasSubstr("if-none-match")),
            Not(HasSubstr("\ncookie"))));
}

TEST_F(QtHttpClientTest, followsARedirect)
{
    EXPECT_EQ(statusOf(server.url("/moved")), 200);
    EXPECT_EQ(body, "the page");
    EXPECT_THAT(server.requests().at(1), HasSubstr("\r\nuser-agent: Fadeloom/42\r\n"));
}

TEST_F(QtHttpClientTest, stopsAtARedirectLoop)
{
    EXPECT_EQ(statusOf(server.url("/circle")), nothing);
}

TEST_F(QtHttpClientTest, isNotRedirectedToAFile)
{
    EXPECT_EQ(statusOf(server.url("/file")), nothing);
}

TEST_F(QtHttpClientTest, anErrorStatusIsAResponse)
{
    EXPECT_EQ(statusOf(server.url("/nowhere")), 404);
    EXPECT_EQ(body, "not here");
}

TEST_F(QtHttpClientTest, aServerErrorIsAResponse)
{
    EXPECT_EQ(statusOf(server.url("/broken")), 500);
    EXPECT_EQ(body, "oh");
}

TEST_F(QtHttpClientTest, onlyHttpIsRequested)
{
    for (const auto* const url :
        {"", "no address", "file:///etc/hostname", "data:,text", "http://", "ftp://127.0.0.1/"}) {
        statuses.clear();
        EXPECT_EQ(statusOf(url), nothing) << url;
    }
}

TEST_F(QtHttpClientTest, exchangesOverlap)
{
    ask(server.url("/slow"), 400ms);
    ask(server.url("/page"));
    ask(server.url("/nowhere"));

    EXPECT_TRUE(waitUntil([&] { return statuses.size() == 3; }));

    EXPECT_THAT(statuses, ::testing::UnorderedElementsAre(200, 404, nothing));
    EXPECT_EQ(statuses.back(), nothing);
}

TEST_F(QtHttpClientTest, noRequestOutlivesIt)
{
    ask(server.url("/slow"), 300ms);
    ask("no address");
    waitUntil([&] { return !server.requests().empty(); });
    statuses.clear();

    http.reset();

    EXPECT_TRUE(waitUntil([&] { return server.disconnections() == 1; }));
    waitUntil([] { return false; }, 400ms);
    EXPECT_THAT(statuses, IsEmpty());
}

TEST_F(QtHttpClientTest, aCallbackMayDestroyIt)
{
    int count = 0;
    const auto endIt = [&](const auto&) {
        ++count;
        http.reset();
    };
    http->get({.url = server.url("/slow"), .userAgent = ""}, endIt);
    EXPECT_TRUE(waitUntil([&] { return server.requests().size() == 1; }));
    http->get({.url = server.url("/page"), .userAgent = ""}, endIt);

    EXPECT_TRUE(waitUntil([&] { return server.disconnections() == 2; }));

    EXPECT_EQ(count, 1);
}

}  // namespace
}  // namespace fadeloom
