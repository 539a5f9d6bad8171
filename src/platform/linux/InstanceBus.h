// SPDX-License-Identifier: MIT
// Where instances of the program meet: a name on the session bus.
#pragma once

#include "platform/linux/InstanceRequest.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <memory>
#include <optional>

namespace fadeloom {

/// Objects below "/com/fadeloom/app/Mixer1", and that one. Thread: main.
class InstanceTree {
public:
    virtual ~InstanceTree() = default;

    /// What is at this path, as elements of introspection.
    [[nodiscard]] virtual QString introspect(const QString& path) const = 0;
    /// Answers now or later. False for what Qt answers by itself.
    virtual bool handle(const QDBusMessage& message) = 0;
};

/// The name is "com.fadeloom.app", the object "/com/fadeloom/app", the interface called as the name; its methods "Open",
/// "Toggle", "Quit" and "Ping" take and give nothing. Errors are "com.fadeloom.app.Error.NoPanel" and "….Ending". The object
/// has the interface "org.freedesktop.Application" as well, by which a desktop starts programs.
///
/// Needs Qt's application object; questions are answered by its running event loop. Thread: the one that makes it.
class InstanceBus {
public:
    /// Connects, on a connection of its own.
    explicit InstanceBus(AnswerInstanceRequest answer);
    /// Gives the name back.
    ~InstanceBus();
    InstanceBus(const InstanceBus&) = delete;
    InstanceBus& operator=(const InstanceBus&) = delete;

    [[nodiscard]] bool isConnected() const { return bus_.isConnected(); }
    [[nodiscard]] QDBusConnection connection() const { return bus_; }
    /// Puts the object there, then takes the name. False when somebody has it.
    [[nodiscard]] bool claim();
    /// Whether an instance of the program has the name, and no other program: it answers as one, or does not answer in
    /// time and runs our executable. Waits for that.
    [[nodiscard]] bool isHeldByInstance(std::chrono::milliseconds patience);
    /// Asks whoever has the name. Absent when nobody answers in time; waits for that.
    [[nodiscard]] std::optional<InstanceAnswer> ask(
        InstanceRequest request, std::chrono::milliseconds patience);

    /// What is answered below; nothing is while it is null.
    void serve(InstanceTree* tree);

private:
    class Object;
    class Tree;

    [[nodiscard]] QDBusMessage call(InstanceRequest request, std::chrono::milliseconds patience);
    [[nodiscard]] bool runsOurExecutable() const;

    const QString connectionName_;
    QDBusConnection bus_;
    const std::unique_ptr<Object> object_;
    const std::unique_ptr<Tree> tree_;
};

}  // namespace fadeloom
