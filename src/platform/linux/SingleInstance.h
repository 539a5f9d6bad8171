// SPDX-License-Identifier: MIT
// One instance of the program in a session: two would take each other's applications away.
//
// A lock in the user's runtime folder decides who is the first. A second start reaches the first one through a socket
// in that folder, or where there is none over the session bus, to have the panel shown. A stranger who has the lock's
// file, the socket's file or the name on the bus keeps nobody from starting.
#pragma once

#include "platform/linux/InstanceLock.h"
#include "platform/linux/InstanceRequest.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

class QDBusConnection;

namespace fadeloom {

class InstanceBus;
class InstanceSocket;
class InstanceTree;

/// Needs Qt's application object. Thread: the one that makes it.
class SingleInstance {
public:
    /// How a start turned out.
    enum class Start {
        first,  // This is the one instance now.
        answered,  // There is another one, which has done what it was asked.
        withoutPanel,  // The other one cannot: it has no panel.
        unanswered,  // The other one says nothing.
    };
    /// What others may ask of this instance. Without an action it has no panel.
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
        RunInstanceCommand run = nullptr;
        WatchInstance watch = nullptr;
        InstanceTree* tree = nullptr;  // On the session bus.
    };

    static constexpr std::chrono::milliseconds patience{2'000};  // With an instance that should answer.
    static constexpr std::chrono::milliseconds patienceWithEnding{
        10'000};  // With one that said that it ends.

    /// `runtimeFolder`: the user's own, and the same for all instances that are to meet. Claims nothing yet.
    explicit SingleInstance(const std::filesystem::path& runtimeFolder);
    /// The next start is the first.
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Becomes the one instance, else asks the other one. Waits for its answer; one that is about to end is waited for,
    /// and followed.
    [[nodiscard]] Start claim(InstanceRequest request);
    /// What is done from now on when others ask, which they can once the event loop runs.
    void serve(Actions actions);
    /// Where others reach it on the session bus; not connected where there is none, or it is not ours.
    [[nodiscard]] QDBusConnection bus() const;
    /// From now on others are told to wait for the end.
    void beginEnding() { isEnding_ = true; }

private:
    [[nodiscard]] std::string busyAnswer() const;
    [[nodiscard]] bool tryToBeFirst();
    [[nodiscard]] bool isAnotherOnBus();
    [[nodiscard]] std::optional<InstanceAnswer> ask(InstanceRequest request, std::chrono::milliseconds wait);
    [[nodiscard]] InstanceAnswer answer(InstanceRequest request);

    Actions actions_;
    bool isEnding_ = false;
    InstanceLock lock_;
    std::unique_ptr<InstanceBus> bus_;
    std::unique_ptr<InstanceSocket> socket_;
};

}  // namespace fadeloom
