// SPDX-License-Identifier: MIT
// Ensures one instance per session: two would capture each other's applications.
//
// A lock in the user's runtime directory decides which is the first. A second start contacts the first one through a
// socket in that directory, or else over the session bus, to open its panel. A foreign file in place of the lock or the
// socket, or a foreign owner of the bus name, does not prevent startup.
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

/// Needs Qt's application object. Thread: the one that creates it.
class SingleInstance {
public:
    /// The outcome of a start.
    enum class Start {
        first,  // This is the first instance.
        answered,  // There is another one, which has handled the request.
        withoutPanel,  // The other one cannot: it has no panel.
        unanswered,  // The other one does not reply.
    };
    /// What other processes may request of this instance. Without actions it has no panel.
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
        RunInstanceCommand run = nullptr;
        WatchInstance watch = nullptr;
        InstanceTree* tree = nullptr;  // On the session bus.
    };

    static constexpr std::chrono::milliseconds timeout{2'000};  // For a reply from a running instance.
    // For an instance that said that it is exiting.
    static constexpr std::chrono::milliseconds endingTimeout{10'000};

    /// `runtimeFolder`: the user's own, and the same for all instances that must find each other. Claims nothing yet.
    explicit SingleInstance(const std::filesystem::path& runtimeFolder);
    /// Allows the next start to be the first.
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Becomes the first instance, otherwise sends the request to the other one. Blocks for its reply; an instance that
    /// is exiting is waited for, and succeeded.
    [[nodiscard]] Start claim(InstanceRequest request);
    /// Sets how requests are handled from now on; they arrive once the event loop runs.
    void serve(Actions actions);
    /// The connection that owns the bus name; not connected if there is no bus, or the name is not ours.
    [[nodiscard]] QDBusConnection bus() const;
    /// From now on other instances are told to wait for the exit.
    void beginEnding() { isEnding_ = true; }

private:
    [[nodiscard]] std::string busyAnswer() const;
    [[nodiscard]] bool tryToClaim();
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
