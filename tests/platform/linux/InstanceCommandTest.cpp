// SPDX-License-Identifier: MIT
// Commands from other programs through the socket.
#include "base/Subscription.h"
#include "platform/linux/InstanceSocket.h"
#include "tests/platform/linux/InstanceStage.h"

#include <QLocalSocket>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

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
        instance.serve({.run =
                            [this](const InstanceCommand& command) {
                                lines.push_back(command.line);
                                callers.push_back(command.caller);
                                return (command.wantsJson ? "ok {} " : "ok ok ") + command.line;
                            },
            .watch = [this](const InstanceCommand& command, const auto& send) -> std::shared_ptr<void> {
                send("ok ok " + command.line);
                if (command.line == "badly")
                    return nullptr;
                watches.push_back(send);
                return std::make_shared<Subscription>([this] { ++endedWatches; });
            }});
    }
    std::unique_ptr<QLocalSocket> connection()
    {
        auto made = std::make_unique<QLocalSocket>();
        made->connectToServer(QString::fromStdString((folder.path() / "fadeloom.socket").string()));
        EXPECT_TRUE(made->waitForConnected(2000));
        return made;
    }
    /// The replies to the bytes within a moment.
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
    std::vector<SendInstanceLine> watches;
    int endedWatches = 0;
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

    EXPECT_EQ(
        answer(*socket, "Run " + QByteArray(300'000, 'x') + "\n"), "usage error the line is too long\n");
    runFor(50ms);

    EXPECT_EQ(socket->state(), QLocalSocket::UnconnectedState);
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(InstanceCommandTest, thatNeverEndTimeOut)
{
    const auto socket = connection();
    socket->write("Run vol");
    runFor(InstanceSocket::longestSilence - 2s);
    EXPECT_EQ(socket->state(), QLocalSocket::ConnectedState);
    runFor(4s);

    EXPECT_EQ(socket->state(), QLocalSocket::UnconnectedState);
}

TEST_F(InstanceCommandTest, ofAThousandConnectionsAreAnsweredOrRejected)
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

TEST_F(InstanceCommandTest, areAnsweredInJsonIfSoAsked)
{
    EXPECT_EQ(answer(*connection(), "Json volume\nRun volume\n"), "ok {} volume\nok ok volume\n");
}

TEST_F(InstanceCommandTest, toWatchKeepTheConnectionUntilOneSideEndsIt)
{
    auto socket = connection();
    EXPECT_EQ(answer(*socket, "Watch text\n"), "ok ok text\n");

    watches.at(0)("one");
    watches.at(0)("two");
    runFor(20ms);
    EXPECT_EQ(socket->readAll().toStdString(), "one\ntwo\n");
    runFor(InstanceSocket::longestSilence + 1s);
    EXPECT_EQ(socket->state(), QLocalSocket::ConnectedState) << "whoever watches may be silent";

    socket.reset();
    runFor(50ms);
    EXPECT_EQ(endedWatches, 1);
    watches.at(0)("three");
}

TEST_F(InstanceCommandTest, toWatchThatAreRefusedEndTheConnection)
{
    const auto socket = connection();

    EXPECT_EQ(answer(*socket, "Watch badly\n"), "ok ok badly\n");
    runFor(50ms);

    EXPECT_EQ(socket->state(), QLocalSocket::UnconnectedState);
    EXPECT_THAT(watches, IsEmpty());
}

TEST_F(InstanceCommandTest, aWatcherThatDoesNotReadIsDroppedWithoutBlocking)
{
    // Qt's socket would read on its own.
    const int silent = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::ranges::copy((folder.path() / "fadeloom.socket").native(), address.sun_path);
    ASSERT_EQ(connect(silent, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(write(silent, "Watch text\n", 11), 11);
    runFor(50ms);
    ASSERT_EQ(watches.size(), 1);

    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 20'000; ++i)
        watches.at(0)(std::string(100, 'x'));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 2s);
    EXPECT_EQ(endedWatches, 0) << "not while it is being told";
    runFor(50ms);

    EXPECT_EQ(endedWatches, 1);
    close(silent);
}

TEST_F(InstanceCommandTest, fiftyWatchersLeaveCapacityForCommands)
{
    std::vector<std::unique_ptr<QLocalSocket>> sockets;
    for (int i = 0; i < 70; ++i) {
        sockets.push_back(connection());
        sockets.back()->write("Watch text\n");
        runFor(2ms);
    }
    runFor(50ms);

    EXPECT_EQ(watches.size(), 64);
    EXPECT_EQ(sockets.back()->readAll().toStdString(), "refused error too many programs watch already\n");
    EXPECT_EQ(answer(*connection(), "Run later\n"), "ok ok later\n");
    for (const auto& send : watches)
        send("now");
    runFor(50ms);
    for (std::size_t i = 0; i < 64; ++i)
        EXPECT_EQ(sockets[i]->readAll().toStdString(), "ok ok text\nnow\n");
}

TEST_F(InstanceCommandTest, toWatchEndWithTheService)
{
    const auto socket = connection();
    answer(*socket, "Watch text\n");

    watches.at(0)("end");
    instance.serve({});
    runFor(50ms);

    EXPECT_EQ(socket->readAll().toStdString(), "end\n");
    EXPECT_EQ(socket->state(), QLocalSocket::UnconnectedState);
}

TEST_F(InstanceCommandTest, areRefusedAtTheEnd)
{
    instance.beginEnding();

    EXPECT_EQ(answer(*connection(), "Run volume player\n"), "busy error it is ending\n");
}

TEST_F(InstanceCommandTest, areToBeRetriedDuringStartup)
{
    instance.serve({});

    EXPECT_EQ(answer(*connection(), "Run volume player\n"), "busy error it is starting or ending\n");
    EXPECT_EQ(answer(*connection(), "Watch text\n"), "busy error it is starting or ending\n");
}

}  // namespace
}  // namespace fadeloom
