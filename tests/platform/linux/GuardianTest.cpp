// SPDX-License-Identifier: MIT
// A guarded program, from the viewpoint of its parent, and its treatment.
#include "platform/linux/Guardian.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t heldThing = 0x1234'5678'9ABC'DEF0;
// What the guardian released, as text. The release function can access only globals.
std::string releaseFile;

void noteRelease(std::uint64_t held, pid_t program)
{
    std::ofstream(releaseFile, std::ios::app) << held << ' ' << program << '\n';
}

class GuardianTest : public ::testing::Test {
protected:
    GuardianTest() { releaseFile = (folder.path() / "released").string(); }
    ~GuardianTest() override
    {
        if (parent > 0 && ::kill(parent, SIGKILL) == 0)
            ::waitpid(parent, nullptr, 0);
        ::close(life[0]);
    }

    /// Runs `program` guarded, and waits until it has started. Its result is its exit status.
    void run(const std::function<int(Guardian&)>& program)
    {
        ASSERT_EQ(::pipe(life.data()), 0);
        parent = ::fork();
        if (parent == 0) {
            ::setpgid(
                // A separate process group, like a shell's job: a group without a shell cannot be stopped.
                0, 0);
            Guardian guardian(&noteRelease, SIGUSR1);
            const pid_t self = ::getpid();
            ::close(life[0]);
            [[maybe_unused]] const auto written = ::write(life[1], &self, sizeof self);
            ::_exit(program(guardian));
        }
        ::close(life[1]);
        ASSERT_EQ(::read(life[0], &programID, sizeof programID), static_cast<ssize_t>(sizeof programID));
        ASSERT_NE(programID, parent);
    }
    void runForEver(std::uint64_t held = heldThing)
    {
        run([held](Guardian& guardian) {
            guardian.hold(held);
            while (true)
                ::pause();
            return 0;
        });
        std::this_thread::sleep_for(50ms);
    }
    /// The end of the started program, as seen by its parent.
    int status(int options = 0)
    {
        int status = 0;
        EXPECT_EQ(::waitpid(parent, &status, options), parent);
        if (!WIFSTOPPED(status))
            parent = -1;
        return status;
    }
    /// Whether the program has ended: it keeps a pipe open while it lives.
    bool isProgramGone(std::chrono::milliseconds timeout)
    {
        pollfd waited{.fd = life[0], .events = POLLIN, .revents = 0};
        return ::poll(&waited, 1, static_cast<int>(timeout.count())) == 1;
    }
    static std::string released()
    {
        std::string line;
        std::getline(std::ifstream(releaseFile), line);
        return line;
    }
    static char stateOf(pid_t process)
    {
        std::string text;
        std::getline(std::ifstream("/proc/" + std::to_string(process) + "/stat"), text);
        return text.empty() ? '-' : text.at(text.rfind(')') + 2);
    }
    template <typename Condition>
    static bool becomes(Condition condition)
    {
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (!condition() && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(5ms);
        return condition();
    }
    std::string expectedRelease() const
    {
        return std::to_string(heldThing) + ' ' + std::to_string(programID);
    }

    TemporaryFolder folder;
    std::array<int, 2> life{-1, -1};
    pid_t parent = -1;
    pid_t programID = -1;
};

TEST_F(GuardianTest, itsExitStatusIsTheProgramsOwn)
{
    run([](Guardian&) { return 7; });

    EXPECT_EQ(WEXITSTATUS(status()), 7);
    EXPECT_EQ(released(), "");
}

TEST_F(GuardianTest, aSignalThatEndsTheProgramEndsItToo)
{
    runForEver();

    ::kill(programID, SIGSEGV);

    const int ended = status();
    EXPECT_TRUE(WIFSIGNALED(ended));
    EXPECT_EQ(WTERMSIG(ended), SIGSEGV);
}

TEST_F(GuardianTest, aStoppedProgramsClientIsReleased)
{
    runForEver();
    const auto begin = std::chrono::steady_clock::now();

    ::kill(programID, SIGSTOP);

    EXPECT_TRUE(becomes([] { return !released().empty(); }));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
    EXPECT_EQ(released(), expectedRelease());
    EXPECT_EQ(stateOf(parent), 'S') << "it guards on";
}

TEST_F(GuardianTest, nothingIsReleasedForAProgramWithoutAnyClient)
{
    runForEver(0);

    ::kill(programID, SIGSTOP);
    EXPECT_TRUE(becomes([&] { return stateOf(programID) == 'T'; }));
    std::this_thread::sleep_for(100ms);

    EXPECT_EQ(released(), "");
}

TEST_F(GuardianTest, aTerminalStopStopsBothAfterTheRelease)
{
    runForEver();

    ::kill(parent, SIGTSTP);

    EXPECT_TRUE(WIFSTOPPED(status(WUNTRACED)));
    EXPECT_EQ(released(), expectedRelease());
    EXPECT_EQ(stateOf(programID), 'T');
    ::kill(parent, SIGCONT);
    EXPECT_TRUE(becomes([&] { return stateOf(programID) == 'S'; }));
    EXPECT_TRUE(becomes([&] { return stateOf(parent) == 'S'; }));
}

TEST_F(GuardianTest, aRequestToQuitIsForwardedOnceForAllItsCopies)
{
    run([](Guardian&) {
        static volatile std::sig_atomic_t asked = 0;
        std::signal(SIGUSR1, [](int) { asked = asked + 1; });
        for (int i = 0; i < 200 && asked == 0; ++i)
            ::usleep(10'000);
        ::usleep(200'000);  // A clean shutdown takes time.
        return asked > 0 ? 5 : 1;
    });
    std::this_thread::sleep_for(100ms);

    ::kill(parent, SIGTERM);
    ::kill(parent, SIGHUP);
    ::kill(parent, SIGTERM);

    EXPECT_EQ(WEXITSTATUS(status()), 5);
}

TEST_F(GuardianTest, aProgramThatCannotHandleTheRequestYetIsEndedByTheSignal)
{
    runForEver();

    ::kill(parent, SIGTERM);

    const int ended = status();
    EXPECT_TRUE(WIFSIGNALED(ended));
    EXPECT_EQ(WTERMSIG(ended), SIGTERM);
}

TEST_F(GuardianTest, aSecondRequestEndsTheProgramImmediately)
{
    run([](Guardian&) {
        std::signal(SIGUSR1, SIG_IGN);
        while (true)
            ::pause();
        return 0;
    });
    std::this_thread::sleep_for(50ms);

    ::kill(parent, SIGTERM);
    std::this_thread::sleep_for(1200ms);
    ::kill(parent, SIGTERM);

    EXPECT_EQ(WTERMSIG(status()), SIGTERM);
}

TEST_F(GuardianTest, theProgramDoesNotOutliveIt)
{
    runForEver();

    ::kill(parent, SIGKILL);

    EXPECT_EQ(WTERMSIG(status()), SIGKILL);
    EXPECT_TRUE(isProgramGone(10s));
}

TEST_F(GuardianTest, hasNoneOfTheProgramsFilesOpen)
{
    run([this](Guardian&) {
        ::close(life[1]);
        while (true)
            ::pause();
        return 0;
    });

    EXPECT_TRUE(isProgramGone(5s)) << "the pipe has no other end";
}

}  // namespace
}  // namespace fadeloom
