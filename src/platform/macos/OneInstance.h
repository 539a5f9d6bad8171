// SPDX-License-Identifier: MIT
// Ensures one instance per user: two would capture each other's applications.
//
// The system itself opens a bundle only once. This covers starting the executable inside it, and an instance without a
// window besides the one with the panel. A file lock decides which is the first; a second start makes the first one
// open its panel through a notification.
#pragma once

#include "base/FileDescriptor.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace fadeloom {

/// Thread: main.
class OneInstance {
public:
    enum class Start {
        first,  // This is the first instance.
        besidePanel,  // There is another one, with a panel.
        besideHeadless,  // There is another one, without a panel.
    };

    /// Set in the environment of an instance that succeeds an exiting one.
    static constexpr const char* successorVariable = "FADELOOM_SUCCEEDS";
    static constexpr std::chrono::milliseconds timeout{10'000};  // For an exiting instance.

    /// `folder`: the user's own, and the same for all instances; empty for none.
    explicit OneInstance(std::filesystem::path folder);
    OneInstance(const OneInstance&) = delete;
    OneInstance& operator=(const OneInstance&) = delete;
    /// Allows the next start to be the first.
    ~OneInstance();

    /// Becomes the first instance, if there is no other. Waits for one that is exiting. If the lock file cannot be
    /// created, every start is the first.
    [[nodiscard]] Start claim(bool hasPanel);
    /// Makes the other instance open its panel.
    void askToOpen() const;
    /// Sets the handler of such a request from another instance.
    void serve(std::function<void()> open);
    /// From now on other instances wait for the exit.
    void beginEnding();

private:
    class Requests;

    [[nodiscard]] bool tryToLock();
    [[nodiscard]] char kindOfOther() const;
    void note(char kind);

    const std::filesystem::path file_;
    std::optional<FileDescriptor> lock_;
    std::unique_ptr<Requests> requests_;
};

}  // namespace fadeloom
