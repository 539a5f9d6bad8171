// SPDX-License-Identifier: MIT
// A private message bus for a test, which starts no services.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace fadeloom {

/// The folder of the bus that this process uses as session bus, if a test starts one there: the address is looked up
/// once per process.
inline const std::filesystem::path& sessionBusFolder()
{
    static const TemporaryFolder folder;
    static const int isKnown =
        setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + (folder.path() / "bus").string()).c_str(), 1);
    static_cast<void>(isKnown);
    return folder.path();
}

/// Ends with the test program, for any reason.
class PrivateBus {
public:
    /// Returns once it accepts connections. Its socket is "bus" in `folder`.
    explicit PrivateBus(const std::filesystem::path& folder)
        : address("unix:path=" + (folder / "bus").string())
    {
        const auto configuration = folder / "bus.conf";
        std::ofstream{configuration} << "<busconfig><type>session</type><listen>" << address
                                     << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                        "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
        std::array<int, 2> ends{-1, -1};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        start("--config-file=" + configuration.string(), ends[1]);
        close(ends[1]);
        char letter = 0;
        EXPECT_EQ(read(ends[0], &letter, 1), 1) << "it prints its address when it is ready";
        close(ends[0]);
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus()
    {
        if (pid_ > 0) {
            kill(pid_, SIGTERM);
            waitpid(pid_, nullptr, 0);
        }
    }

    const std::string address;

private:
    void start(const std::string& configuration, int output)
    {
        pid_ = fork();
        EXPECT_GE(pid_, 0);
        if (pid_ != 0)
            return;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(output, STDOUT_FILENO);
        dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        execlp("dbus-daemon", "dbus-daemon", "--nofork", "--print-address", configuration.c_str(), nullptr);
        _exit(127);
    }

    pid_t pid_ = -1;
};

}  // namespace fadeloom
