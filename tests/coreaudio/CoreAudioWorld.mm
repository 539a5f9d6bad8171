// SPDX-License-Identifier: MIT
#include "tests/coreaudio/CoreAudioWorld.h"
#include "platform/macos/HAL.h"
#include "platform/macos/NSText.h"
#include "platform/macos/OutputDevices.h"
#include "tests/coreaudio/SinePlayer.h"

#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <utility>
#include <vector>

extern char** environ;

namespace fadeloom {

using namespace std::chrono_literals;

CoreAudioWorld::CoreAudioWorld() = default;

CoreAudioWorld::~CoreAudioWorld()
{
    for (const ProcessID player : std::set(players_))
        endPlayer(player);
    if (const auto original = originalOutput())
        setDefaultOutput(*original);
    for (const auto& [uid, device] : std::exchange(devices_, {}))
        AudioHardwareDestroyAggregateDevice(device);
    runFor(200ms);
}

std::optional<std::string> CoreAudioWorld::originalOutput()
{
    static const auto uid = OutputDevices::defaultOutputUID();  // As it was at startup.
    return uid;
}

bool CoreAudioWorld::mayCapture()
{
    return TccPermission().preflight().value_or(0) == 0;
}

std::string& CoreAudioWorld::program()
{
    static std::string path;
    return path;
}

ProcessID CoreAudioWorld::startPlayer(float amplitude)
{
    std::string loudness = std::to_string(amplitude);
    std::string option = "--play";
    char* arguments[] = {program().data(), option.data(), loudness.data(), nullptr};
    ProcessID pid = -1;
    const int error = posix_spawn(&pid, program().c_str(), nullptr, nullptr, arguments, environ);
    EXPECT_EQ(error, 0) << "the player did not start";
    players_.insert(pid);
    return pid;
}

void CoreAudioWorld::pausePlayer(ProcessID player)
{
    ::kill(player, SinePlayer::pauseSignal);
}

void CoreAudioWorld::resumePlayer(ProcessID player)
{
    ::kill(player, SinePlayer::resumeSignal);
}

void CoreAudioWorld::endPlayer(ProcessID player)
{
    ::kill(player, SIGTERM);
    ::waitpid(player, nullptr, 0);
    players_.erase(player);
}

void CoreAudioWorld::plug(const std::string& uid, const std::string& name, std::uint32_t /*channels*/)
{
    plugTogether(uid, name, {originalOutput().value_or("")});
}

void CoreAudioWorld::plugTogether(
    const std::string& uid, const std::string& name, const std::set<std::string>& parts)
{
    NSMutableArray<NSDictionary*>* list = [NSMutableArray array];
    for (const std::string& part : parts)
        [list addObject:@{@kAudioSubDeviceUIDKey : nsText(part)}];
    NSDictionary* description = @{
        @kAudioAggregateDeviceUIDKey : nsText(uid),
        @kAudioAggregateDeviceNameKey : nsText(name),
        @kAudioAggregateDeviceSubDeviceListKey : list,
        @kAudioAggregateDeviceMainSubDeviceKey : nsText(originalOutput().value_or("")),
    };
    AudioObjectID device = kAudioObjectUnknown;
    const OSStatus status =
        AudioHardwareCreateAggregateDevice((__bridge CFDictionaryRef)description, &device);
    EXPECT_EQ(status, kAudioHardwareNoError) << uid << " could not be plugged in";
    devices_[uid] = device;
}

void CoreAudioWorld::unplug(const std::string& uid)
{
    if (OutputDevices::defaultOutputUID() == uid)
        setDefaultOutput(originalOutput().value_or(""));
    AudioHardwareDestroyAggregateDevice(devices_.extract(uid).mapped());
}

void CoreAudioWorld::setDefaultOutput(const std::string& uid)
{
    for (const auto& device : OutputDevices::all())
        if (device.uid == uid)
            EXPECT_TRUE(CoreAudioSystem().setDefaultOutput(device)) << uid;
}

bool CoreAudioWorld::waitUntil(const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + 8s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        runFor(5ms);
    }
    return true;
}

void CoreAudioWorld::settle()
{
    runFor(500ms);
}

void CoreAudioWorld::runFor(std::chrono::milliseconds duration)
{
    const auto end = mainLoop_.after(duration, [this] { mainLoop_.quit(); });
    mainLoop_.run();
}

}  // namespace fadeloom
