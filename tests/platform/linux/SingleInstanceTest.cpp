// SPDX-License-Identifier: MIT
// Instances that communicate without a session bus.
#include "tests/platform/linux/InstanceStage.h"

#include <QLocalSocket>
#include <QSysInfo>
#include <sys/stat.h>

#include <fstream>
#include <functional>
#include <initializer_list>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SingleInstanceTest : public InstanceStage {
protected:
    /// Our instance, which is the first.
    SingleInstance& first()
    {
        instance.emplace(folder.path());
        EXPECT_EQ(instance->claim(InstanceRequest::open), Start::first);
        return *instance;
    }

    std::optional<SingleInstance> instance;
};

TEST_F(SingleInstanceTest, theFirstReceivesNoRequest)
{
    serve(first());
    runFor(20ms);

    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SingleInstanceTest, aSecondStartOpensThePanelOfTheFirst)
{
    serve(first());

    EXPECT_EQ(outcomeOf(startAnother()), Start::answered);

    EXPECT_THAT(asked, ElementsAre("open"));
}

TEST_F(SingleInstanceTest, everyOtherRequestWorks)
{
    serve(first());

    for (const auto request : {InstanceRequest::toggle, InstanceRequest::ping, InstanceRequest::quit})
        EXPECT_EQ(outcomeOf(startAnother(request)), Start::answered);

    EXPECT_THAT(asked, ElementsAre("toggle", "quit"));
}

TEST_F(SingleInstanceTest, manyStartsAtOnceAreAllAnswered)
{
    serve(first());
    std::vector<std::future<Start>> starts;
    for (int i = 0; i < 8; ++i)
        starts.push_back(startAnother());

    for (auto& start : starts)
        EXPECT_EQ(outcomeOf(std::move(start)), Start::answered);

    EXPECT_EQ(asked.size(), 8U);
}

TEST_F(SingleInstanceTest, anInstanceWithoutAPanelSaysSo)
{
    first().serve({.quit = [this] { asked.emplace_back("quit"); }});

    EXPECT_EQ(outcomeOf(startAnother(InstanceRequest::open)), Start::withoutPanel);
    EXPECT_EQ(outcomeOf(startAnother(InstanceRequest::ping)), Start::answered);
}

TEST_F(SingleInstanceTest, onceItHasExitedTheNextIsTheFirst)
{
    serve(first());
    instance.reset();

    EXPECT_EQ(outcomeOf(startAnother()), Start::first);
}

TEST_F(SingleInstanceTest, oneThatIsExitingIsWaitedForAndSucceeded)
{
    serve(first());
    instance->beginEnding();
    auto second = startAnother();
    runFor(300ms);
    EXPECT_EQ(second.wait_for(0s), std::future_status::timeout);

    instance.reset();

    EXPECT_EQ(outcomeOf(std::move(second)), Start::first);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SingleInstanceTest, oneThatDoesNotReplyTimesOutAfterTwoSeconds)
{
    serve(first());
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_EQ(startAnother().get(), Start::unanswered);  // While our event loop is blocked.

    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited, 1900ms);
    EXPECT_LE(waited, 5s);
}

TEST_F(SingleInstanceTest, whatACrashLeftBehindIsIgnored)
{
    // The process with this pid has long exited, and nobody listens.
    std::ofstream{folder.path() / "fadeloom.lock"} << "999999999\nfadeloom\n"
                                                   << QSysInfo::machineHostName().toStdString() << "\n";
    std::ofstream{folder.path() / "fadeloom.socket"} << "";

    serve(first());

    EXPECT_EQ(outcomeOf(startAnother()), Start::answered);
}

TEST_F(SingleInstanceTest, anyFileInTheLocksPlaceDoesNotPreventStartup)
{
    const auto lock = folder.path() / "fadeloom.lock";
    const auto makePipe = [&] { ASSERT_EQ(::mkfifo(lock.c_str(), 0600), 0); };
    const auto makeFolder = [&] { std::filesystem::create_directories(lock / "deep"); };
    const auto makeLink = [&] { std::filesystem::create_symlink("/nonexistent/file", lock); };
    const auto makeLinkToItself = [&] { std::filesystem::create_symlink(lock, lock); };

    for (const std::function<void()>& make :
        std::initializer_list<std::function<void()>>{makePipe, makeFolder, makeLink, makeLinkToItself}) {
        make();
        serve(first());
        EXPECT_EQ(outcomeOf(startAnother()), Start::answered) << "the second is no first";
        instance.reset();
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::symlink_status(lock))) << "it is not ours";
        std::filesystem::remove_all(lock);
    }
}

TEST_F(SingleInstanceTest, anyFileInTheSocketsPlaceDoesNotPreventStartup)
{
    const auto socket = folder.path() / "fadeloom.socket";
    ASSERT_EQ(::mkfifo(socket.c_str(), 0600), 0);
    first();
    instance.reset();

    std::filesystem::remove(socket);
    std::filesystem::create_directories(socket / "deep");
    first();
}

TEST_F(SingleInstanceTest, nothingIsLeftInTheFolder)
{
    first();
    instance.reset();

    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(SingleInstanceTest, strangersAtTheSocketAreHarmless)
{
    serve(first());
    QLocalSocket silent;
    QLocalSocket loud;
    QLocalSocket wrong;
    for (auto* const socket : {&silent, &loud, &wrong})
        socket->connectToServer(QString::fromStdString((folder.path() / "fadeloom.socket").string()));
    loud.write(QByteArray(300'000, 'x'));
    wrong.write("Destroy\n");
    runFor(50ms);

    EXPECT_EQ(outcomeOf(startAnother()), Start::answered);

    EXPECT_EQ(loud.state(), QLocalSocket::UnconnectedState);
    EXPECT_EQ(wrong.state(), QLocalSocket::UnconnectedState);
    EXPECT_THAT(asked, ElementsAre("open"));
}

TEST_F(SingleInstanceTest, onlyTheUserReachesTheSocket)
{
    first();

    const auto permissions = std::filesystem::status(folder.path() / "fadeloom.socket").permissions();

    EXPECT_EQ(permissions & (std::filesystem::perms::group_all | std::filesystem::perms::others_all),
        std::filesystem::perms::none);
}

TEST_F(SingleInstanceTest, itRunsEvenIfLockingIsImpossible)
{
    SingleInstance nowhere{folder.path() / "none"};

    EXPECT_EQ(nowhere.claim(InstanceRequest::open), Start::first);
}

}  // namespace
}  // namespace fadeloom
