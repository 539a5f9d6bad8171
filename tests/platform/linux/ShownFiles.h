// SPDX-License-Identifier: MIT
// A test's own file manager.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fadeloom {

/// The D-Bus service of a desktop's file manager.
class ShownFiles final : public QDBusVirtualObject {
public:
    enum class Answers { always, never };

    ShownFiles(const std::string& address, Answers answers)
        : answers_(answers)
        , bus_(QDBusConnection::connectToBus(QString::fromStdString(address), "shown-files"))
    {
        EXPECT_TRUE(bus_.registerVirtualObject("/org/freedesktop/FileManager1", this));
        EXPECT_TRUE(bus_.registerService("org.freedesktop.FileManager1"));
    }
    ~ShownFiles() override { QDBusConnection::disconnectFromBus("shown-files"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        const auto arguments = message.arguments();
        std::string call =
            (message.interface() + "." + message.member() + "(" + message.signature() + ")").toStdString();
        for (const auto& uri : arguments.value(0).toStringList())
            call += " " + uri.toStdString();
        calls_.push_back(call + " '" + arguments.value(1).toString().toStdString() + "'");
        if (answers_ == Answers::always)
            bus.send(message.createReply());
        return true;
    }

    [[nodiscard]] const std::vector<std::string>& calls() const { return calls_; }

private:
    const Answers answers_;
    QDBusConnection bus_;
    std::vector<std::string> calls_;
};

}  // namespace fadeloom
