// SPDX-License-Identifier: MIT
// Failed and invalid responses.
#include "tests/platform/qt/HttpClientStage.h"

namespace fadeloom {
namespace {

class HttpClientFailureTest : public HttpClientStage { };

TEST_F(HttpClientFailureTest, aTruncatedResponseIsDiscarded)
{
    EXPECT_EQ(statusOf(server.url("/cut")), nothing);
}

TEST_F(HttpClientFailureTest, aDroppedConnectionIsNotAResponse)
{
    EXPECT_EQ(statusOf(server.url("/drop")), nothing);
}

TEST_F(HttpClientFailureTest, anythingButHttpIsNotAResponse)
{
    EXPECT_EQ(statusOf(server.url("/garbage")), nothing);
}

TEST_F(HttpClientFailureTest, withoutAListenerThereIsNoReply)
{
    QTcpServer unused;
    unused.listen(QHostAddress::LocalHost);
    const auto port = unused.serverPort();
    unused.close();

    EXPECT_EQ(statusOf("http://127.0.0.1:" + std::to_string(port) + "/page"), nothing);
}

TEST_F(HttpClientFailureTest, aStalledResponseTimesOut)
{
    EXPECT_EQ(statusOf(server.url("/slow"), 200ms), nothing);
}

TEST_F(HttpClientFailureTest, theTimeoutIsForTheWholeExchange)
{
    EXPECT_EQ(statusOf(server.url("/drip"), 300ms), nothing);
    EXPECT_TRUE(waitUntil([&] { return server.disconnections() == 1; }));
}

TEST_F(HttpClientFailureTest, aResponseMayHaveTheMaximumSize)
{
    EXPECT_EQ(statusOf(server.url("/large")), 200);
    EXPECT_EQ(body.size(), 65536U);
}

TEST_F(HttpClientFailureTest, aLargerOneIsRejected)
{
    EXPECT_EQ(statusOf(server.url("/larger")), nothing);
}

TEST_F(HttpClientFailureTest, aLargerOneIsRefusedWhileItArrives)
{
    EXPECT_EQ(statusOf(server.url("/flood")), nothing);

    EXPECT_TRUE(waitUntil([&] { return server.disconnections() == 1; }));
    EXPECT_LT(flooded, 32 * 1024 * 1024);  // The amount buffered by the system.
}

}  // namespace
}  // namespace fadeloom
