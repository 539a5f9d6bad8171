// SPDX-License-Identifier: MIT
// One instance of the program for a user: two would take each other's applications away.
//
// The system itself opens a bundle only once. This is for who starts the executable inside of it, and for an instance
// without a window beside the one with the panel. A lock on a file decides who is the first; a second start has the
// panel of the first opened by a notification.
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
        first,  // This is the one instance now.
        besidePanel,  // There is another one, with a panel.
        besideHeadless,  // There is another one, without.
    };

    /// In the environment of an instance that follows one which is about to end.
    static constexpr const char* successorVariable = "FADELOOM_SUCCEEDS";
    static constexpr std::chrono::milliseconds patience{10'000};  // With one that ends.

    /// `folder`: the user's own, and the same for all instances; an empty one is none.
    explicit OneInstance(std::filesystem::path folder);
    OneInstance(const OneInstance&) = delete;
    OneInstance& operator=(const OneInstance&) = delete;
    /// The next start is the first.
    ~OneInstance();

    /// Becomes the one instance, if there is no other. Waits for one that ends. Where the lock's file cannot be made,
    /// every start is the first.
    [[nodiscard]] Start claim(bool hasPanel);
    /// Has the other instance open its panel.
    void askToOpen() const;
    /// What is done from now on when another one asks for that.
    void serve(std::function<void()> open);
    /// From now on others wait for the end.
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
