// SPDX-License-Identifier: MIT
#include "tests/pipewire/RealPlayers.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <thread>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

constexpr int rate = 48000;

template <typename T>
void append(std::string& bytes, T value)
{
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

// A float WAVE file of one second: 441 whole periods, so that it can be looped.
void writeSine(const std::string& path, float amplitude)
{
    std::string samples;
    for (int i = 0; i < rate; ++i) {
        const auto value = amplitude * static_cast<float>(std::sin(2 * std::numbers::pi * 441 * i / rate));
        append(samples, value);
        append(samples, value);
    }
    std::string header = "RIFF";
    append(header, static_cast<std::uint32_t>(36 + samples.size()));
    header += "WAVEfmt ";
    append(header, std::uint32_t{16});
    append(header, std::uint16_t{3});
    append(header, std::uint16_t{2});
    append(header, std::uint32_t{rate});
    append(header, std::uint32_t{rate * 8});
    append(header, std::uint16_t{8});
    append(header, std::uint16_t{32});
    header += "data";
    append(header, static_cast<std::uint32_t>(samples.size()));
    std::ofstream{path, std::ios::binary} << header << samples;
}

ProcessID spawn(const std::vector<std::string>& command)
{
    std::vector<char*> arguments;
    for (const auto& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t pid = fork();
    if (pid == 0) {
        if (!std::freopen("/dev/null", "w", stdout) || !std::freopen("/dev/null", "w", stderr))
            _exit(126);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    return pid;
}

int run(const std::vector<std::string>& command)
{
    int status = 0;
    waitpid(spawn(command), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool sendLine(const std::string& socketPath, const std::string& line)
{
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socketPath.copy(address.sun_path, sizeof address.sun_path - 1);
    const auto text = line + "\n";
    const bool isSent = connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0
        && write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    close(descriptor);
    return isSent;
}

}  // namespace

RealPlayers::RealPlayers()
{
    std::string pattern = std::filesystem::temp_directory_path() / "fadeloom-players-XXXXXX";
    folder_ = mkdtemp(pattern.data());
}

RealPlayers::~RealPlayers()
{
    while (!players_.empty())
        end(players_.begin()->first);
    while (!devices_.empty())
        unplug(std::string{devices_.back()});
    std::filesystem::remove_all(folder_);
}

ProcessID RealPlayers::startSine(float amplitude)
{
    const auto number = std::to_string(players_.size());
    const auto file = folder_ + "/sine" + number + ".wav";
    const auto socketPath = folder_ + "/control" + number;
    writeSine(file, amplitude);
    const auto pid = spawn({"mpv", "--no-config", "--really-quiet", "--ao=pipewire", "--loop-file=inf",
        "--input-ipc-server=" + socketPath, file});
    players_[pid] = socketPath;
    return pid;
}

void RealPlayers::setPaused(ProcessID player, bool isPaused)
{
    const std::string command =
        std::string{R"({"command":["set_property","pause",)"} + (isPaused ? "true" : "false") + "]}";
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (sendLine(players_.at(player), command))
            return;
        std::this_thread::sleep_for(20ms);
    }
    ADD_FAILURE() << "the player does not listen";
}

void RealPlayers::end(ProcessID player)
{
    players_.erase(player);
    kill(player, SIGTERM);
    waitpid(player, nullptr, 0);
}

void RealPlayers::plug(const std::string& uid, const std::string& name, const std::string& positions)
{
    // No suspending: WirePlumber 0.4 crashes if a device is removed while its suspend timeout is running.
    const auto properties = "{ session.suspend-timeout-seconds=0 factory.name=support.null-audio-sink "
                            "media.class=Audio/Sink object.linger=true node.name=\""
        + uid + "\" node.description=\"" + name + "\" audio.position=[" + positions + "] }";
    EXPECT_EQ(run({"pw-cli", "create-node", "adapter", properties}), 0);
    devices_.push_back(uid);
}

void RealPlayers::unplug(const std::string& uid)
{
    std::erase(devices_, uid);
    EXPECT_EQ(run({"pw-cli", "destroy", uid}), 0);
}

void RealPlayers::setDefaultOutput(const std::string& uid)
{
    // Removed first: writing an unchanged value would be no change, and would have no effect.
    run({"pw-metadata", "-d", "0", "default.configured.audio.sink"});
    EXPECT_EQ(run({"pw-metadata", "0", "default.configured.audio.sink", "{ \"name\": \"" + uid + "\" }",
                  "Spa:String:JSON"}),
        0);
}

}  // namespace fadeloom
