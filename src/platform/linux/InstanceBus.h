// SPDX-License-Identifier: MIT
// Communication between instances: a name on the session bus.
#pragma once

#include "platform/linux/InstanceRequest.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <memory>
#include <optional>

namespace fadeloom {

/// The object "/com/fadeloom/app/Mixer1", and those below it. Thread: main.
class InstanceTree {
public:
    virtual ~InstanceTree() = default;

    /// The introspection XML of the object at this path.
    [[nodiscard]] virtual QString introspect(const QString& path) const = 0;
    /// Replies now or later. False for what Qt handles itself.
    virtual bool handle(const QDBusMessage& message) = 0;
};

/// The name is "com.fadeloom.app", the object "/com/fadeloom/app", the interface is called like the name; its methods
/// "Open", "Toggle", "Quit" and "Ping" have no arguments and no result. Errors are "com.fadeloom.app.Error.NoPanel" and
/// "….Ending". The object also has the interface "org.freedesktop.Application", with which a desktop starts programs.
///
/// Needs Qt's application object; calls are handled by its running event loop. Thread: the one that creates it.
class InstanceBus {
public:
    /// Connects, on a private connection.
    explicit InstanceBus(AnswerInstanceRequest answer);
    /// Releases the name.
    ~InstanceBus();
    InstanceBus(const InstanceBus&) = delete;
    InstanceBus& operator=(const InstanceBus&) = delete;

    [[nodiscard]] bool isConnected() const { return bus_.isConnected(); }
    [[nodiscard]] QDBusConnection connection() const { return bus_; }
    /// Registers the object, then requests the name. False if it is taken.
    [[nodiscard]] bool claim();
    /// Whether the name belongs to an instance of the program rather than another program: it replies like one, or does
    /// not reply in time and runs our executable. Blocks for that.
    [[nodiscard]] bool isHeldByInstance(std::chrono::milliseconds timeout);
    /// Sends a request to the owner of the name. nullopt without a reply in time; blocks for that.
    [[nodiscard]] std::optional<InstanceAnswer> ask(
        InstanceRequest request, std::chrono::milliseconds timeout);

    /// Handles calls to the objects below; none are handled while it is null.
    void serve(InstanceTree* tree);

private:
    class Object;
    class Tree;

    [[nodiscard]] QDBusMessage call(InstanceRequest request, std::chrono::milliseconds timeout);
    [[nodiscard]] bool runsOurExecutable() const;

    const QString connectionName_;
    QDBusConnection bus_;
    const std::unique_ptr<Object> object_;
    const std::unique_ptr<Tree> tree_;
};

}  // namespace fadeloom
