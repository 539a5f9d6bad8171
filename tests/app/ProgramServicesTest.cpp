// SPDX-License-Identifier: MIT
// The program as started by a user: twice, and with an update server.
#include "app/ProductPages.h"
#include "app/Version.h"
#include "platform/linux/InstanceSocket.h"
#include "tests/app/RunningProgram.h"
#include "tests/platform/linux/PrivateBus.h"
#include "tests/platform/qt/LoopbackServer.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// On this machine, with private folders, no audio server, and a virtual screen.
class ProgramServicesTest : public testing::Test {
protected:
    using Program = std::unique_ptr<RunningProgram>;

    Program start(const std::vector<std::string>& words = {}) const
    {
        const auto here = folder.path().string();
        return std::make_unique<RunningProgram>(words,
            std::map<std::string, std::string>{{"QT_QPA_PLATFORM", "offscreen"}, {"XDG_CONFIG_HOME", here},
                {"XDG_RUNTIME_DIR", here}, {"PIPEWIRE_RUNTIME_DIR", here}, {"TMPDIR", here},
                {"DBUS_SESSION_BUS_ADDRESS", busAddress},
                {"FADELOOM_UPDATE_ENDPOINT", server.url("/updates")}, {"http_proxy", ""}, {"all_proxy", ""}});
    }
    bool waitForRequests(std::size_t count, std::chrono::milliseconds timeout = RunningProgram::timeout) const
    {
        const auto end = std::chrono::steady_clock::now() + timeout;
        while (server.requests().size() < count && std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return server.requests().size() >= count;
    }
    /// A server that responds.
    Program startFirst() const
    {
        auto program = start();
        const InstanceSocket socket{folder.path() / "fadeloom.socket", nullptr, nullptr, nullptr};
        const auto end = std::chrono::steady_clock::now() + RunningProgram::timeout;
        while (!socket.ask(InstanceRequest::ping, 1s) && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(20ms);
        EXPECT_EQ(socket.ask(InstanceRequest::ping, 1s), InstanceAnswer::done);
        return program;
    }
    Program startFirstHeadless() const
    {
        auto program = start({"--headless"});
        EXPECT_TRUE(program->lineWith("default none"));
        return program;
    }
    void startBus()
    {
        bus.emplace(folder.path());
        busAddress = bus->address;
    }

    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    TemporaryFolder folder;
    std::optional<PrivateBus> bus;
    std::string busAddress = "unix:path=/nonexistent";
    LoopbackServer server{[](QTcpSocket& connection, const std::string&) {
        LoopbackServer::answer(connection, "200 OK", R"({"version": "99.0", "build": 1000000})");
    }};
};

TEST_F(ProgramServicesTest, asksForUpdatesAtTheStartUnlessItIsBuiltNotTo)
{
    const std::size_t count = updateEndpoint() ? 1 : 0;
    const auto program = startFirst();

    EXPECT_TRUE(waitForRequests(count));
    EXPECT_FALSE(waitForRequests(count + 1, 500ms));

    EXPECT_THAT(server.requests(),
        Each(AllOf(StartsWith("GET /updates/version.json HTTP/1.1\r\n"),
            HasSubstr("\r\nuser-agent: Fadeloom/" + std::string(programBuild()) + "\r\n"))));
    program->signal(SIGTERM);
    EXPECT_EQ(program->exitStatus(), 0);
}

TEST_F(ProgramServicesTest, sendsNoRequestWithoutAWindowOrInASimulation)
{
    const auto headless = startFirstHeadless();
    const auto simulated = start({"--simulate"});
    EXPECT_FALSE(waitForRequests(1, 1s));

    headless->signal(SIGTERM);
    simulated->signal(SIGTERM);
    EXPECT_EQ(headless->exitStatus(), 0);
    EXPECT_EQ(simulated->exitStatus(), 0);
}

TEST_F(ProgramServicesTest, aSecondStartOpensThePanelOfTheFirst)
{
    const auto first = startFirst();

    const auto second = start();

    EXPECT_EQ(second->exitStatus(), 0);
    EXPECT_THAT(second->errorText(), HasSubstr("fadeloom: it is running already; its panel is open now\n"));
    first->signal(SIGTERM);
    EXPECT_EQ(first->exitStatus(), 0);
}

TEST_F(ProgramServicesTest, aSecondStartFindsTheFirstOnTheSessionBus)
{
    startBus();
    const auto first = startFirst();
    std::filesystem::remove(folder.path() / "fadeloom.socket");

    const auto second = start();

    EXPECT_EQ(second->exitStatus(), 0);
    first->signal(SIGTERM);
    EXPECT_EQ(first->exitStatus(), 0);
}

TEST_F(ProgramServicesTest, twoHeadlessInstancesConflict)
{
    const auto first = startFirstHeadless();

    const auto second = start({"--headless"});

    EXPECT_EQ(second->exitStatus(), 3);
    EXPECT_EQ(second->errorText(),
        "fadeloom: it is running already; two would take each other's applications away\n");
    first->write("quit\n");
    EXPECT_EQ(first->exitStatus(), 0);
}

TEST_F(ProgramServicesTest, oneWithoutAWindowHasNoPanelToOpen)
{
    const auto first = startFirstHeadless();

    const auto second = start();

    EXPECT_EQ(second->exitStatus(), 3);
    EXPECT_THAT(
        second->errorText(), HasSubstr("fadeloom: it is running already, without a panel (--headless)\n"));
}

TEST_F(ProgramServicesTest, oneWithoutAWindowDoesNotJoinAPanel)
{
    const auto first = startFirst();

    EXPECT_EQ(start({"--headless"})->exitStatus(), 3);
}

TEST_F(ProgramServicesTest, aSimulatedProgramDoesNotInterfereWithOthers)
{
    const auto first = startFirstHeadless();

    const auto second = start({"--headless", "--simulate"});

    EXPECT_TRUE(second->lineWith("log tap ready: com.example.player"));
}

TEST_F(ProgramServicesTest, oneThatIsStoppedIsNotWaitedForForever)
{
    const auto first = startFirst();
    first->signalProgram(SIGSTOP);

    const auto second = start();

    EXPECT_EQ(second->exitStatus(), 1);
    EXPECT_THAT(second->errorText(), HasSubstr("fadeloom: it is running already, but does not answer\n"));
    first->signalProgram(SIGCONT);
}

TEST_F(ProgramServicesTest, afterACrashTheNextIsTheFirst)
{
    startFirst()->signal(SIGKILL);

    const auto next = startFirst();

    next->signal(SIGTERM);
    EXPECT_EQ(next->exitStatus(), 0);
}

TEST_F(ProgramServicesTest, aStartDuringTheExitSucceedsIt)
{
    const auto first = startFirstHeadless();

    first->write("quit\n");
    const auto next = start({"--headless"});

    EXPECT_TRUE(next->lineWith("default none"));
    EXPECT_EQ(first->exitStatus(), 0);
}

}  // namespace
}  // namespace fadeloom
