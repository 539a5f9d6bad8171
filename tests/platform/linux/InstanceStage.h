// SPDX-License-Identifier: MIT
// Instances of the program in one session: one of them on this thread, the others on separate threads.
#pragma once

#include "platform/linux/SingleInstance.h"
#include "tests/platform/linux/PrivateBus.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

class InstanceStage : public ::testing::Test {
protected:
    using Start = SingleInstance::Start;

    /// The requests to the panel's instance are recorded in `asked`.
    void serve(SingleInstance& instance)
    {
        instance.serve({.open = [this] { asked.emplace_back("open"); },
            .toggle = [this] { asked.emplace_back("toggle"); },
            .quit = [this] { asked.emplace_back("quit"); }});
    }
    /// Another instance starts, and exits.
    std::future<Start> startAnother(InstanceRequest request, const std::filesystem::path& runtimeFolder)
    {
        return std::async(std::launch::async,
            [request, runtimeFolder] { return SingleInstance(runtimeFolder).claim(request); });
    }
    std::future<Start> startAnother(InstanceRequest request = InstanceRequest::open)
    {
        return startAnother(request, folder.path());
    }
    /// Runs our event loop until the other instance has its result.
    static Start outcomeOf(std::future<Start> start)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (start.wait_for(std::chrono::seconds(0)) != std::future_status::ready
            && std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return start.get();
    }
    static void runFor(std::chrono::milliseconds time)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }

    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    const std::filesystem::path& busFolder = sessionBusFolder();
    TemporaryFolder folder;
    std::vector<std::string> asked;
};

}  // namespace fadeloom
