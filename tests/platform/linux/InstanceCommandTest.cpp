// SPDX-License-Identifier: MIT
// Commands that other programs give through the socket.
#include "tests/platform/linux/InstanceStage.h"

#include "platform/linux/InstanceSocket.h"

#include <QLocalSocket>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InstanceCommandTest : public InstanceStage {
protected:
    InstanceCommandTest()
    {
        EXPECT_EQ(instance.claim(InstanceRequest::open), Start::first);
        instance.serve({.run = [this](const std::string& line, pid_t caller) {
            lines.push_back(line);
            callers.push_back(caller);
            return "ok ok " + line;
        }});
    }
    std::unique_ptr<QLocalSocket> connection()
    {
        auto made = std::make_unique<QLocalSocket>();
        made->connectToServer(QString::fromStdString((folder.path() / "fadeloom.socket").string()));
        EXPECT_TRUE(made->waitForConnected(2000));
        return made;
    }
    /// What comes back for the bytes within a moment.
    static std::string answer(QLocalSocket& socket, const QByteArray& bytes)
    {
        socket.write(bytes);
        for (int i = 0; i < 50 && socket.bytesAvailable() == 0; ++i)
            runFor(5ms);
        return socket.readAll().toStdString();
    }

    SingleInstance instance{folder.path()};
    std::vector<std::string> lines;
    std::vector<pid_t> callers;
};

TEST_F(InstanceCommandTest, areAnsweredOneAfterTheOtherOnOneConnection)
{
    const auto socket = connection();

    EXPECT_EQ(answer(*socket, "Run volume player\n"), "ok ok volume player\n");
    EXPECT_EQ(answer(*socket, "Run a\nRun b\n"), "ok ok a\nok ok b\n");

    EXPECT_THAT(lines, ElementsAre("volume player", "a", "b"));
    EXPECT_EQ(callers.front(), getpid());
}

TEST_F(InstanceCommandTest, ofAnyBytesArePassedOn)
{
    const auto socket = connection();

    EXPECT_EQ(answer(*socket, QByteArray("Run \xff\0\x01 x\n", 10)), std::string("ok ok \xff\0\x01 x\n", 12));
}

TEST_F(InstanceCommandTest, thatAreTooLongEndTheConnection)
{
    const auto socket = connection();

    answer(*socket, "Run " + QByteArray(10'000, 'x') + "\n");
    runFor(50ms);

    EXPECT_EQ(socket->state(), QLocalSocket::UnconnectedState);
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(InstanceCommandTest, thatNeverEndAreGivenUpAfterAWhile)
{
    const auto socket = connection();
    socket->write("Run vol");
    runFor(InstanceSocket::longestSilence - 2s);
    EXPECT_EQ(socket->state(), QLocalSocket::ConnectedState);
    runFor(4s);

    EXPECT_EQ(socket->state(), QLocalSocket::UnconnectedState);
}

TEST_F(InstanceCommandTest, ofAThousandConnectionsAreAnsweredOrTurnedAway)
{
    std::vector<std::unique_ptr<QLocalSocket>> sockets;
    for (int i = 0; i < 200; ++i) {
        sockets.push_back(std::make_unique<QLocalSocket>());
        sockets.back()->connectToServer(QString::fromStdString((folder.path() / "fadeloom.socket").string()));
        runFor(1ms);
    }
    runFor(100ms);
    const auto open = std::ranges::count_if(
        sockets, [](const auto& socket) { return socket->state() == QLocalSocket::ConnectedState; });
    EXPECT_LE(open, 64);
    EXPECT_GE(open, 60);

    sockets.clear();
    runFor(100ms);
    EXPECT_EQ(answer(*connection(), "Run later\n"), "ok ok later\n");
}

TEST_F(InstanceCommandTest, areRefusedAtTheEnd)
{
    instance.beginEnding();

    EXPECT_EQ(answer(*connection(), "Run volume player\n"), "refused error it is ending\n");
}

}  // namespace
}  // namespace fadeloom
