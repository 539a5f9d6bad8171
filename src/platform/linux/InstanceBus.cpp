// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceBus.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVirtualObject>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <string>
#include <utility>

namespace fadeloom {

namespace {

const QString busName = QStringLiteral("com.fadeloom.app");
const QString objectPath = QStringLiteral("/com/fadeloom/app");
const QString interfaceName = busName;
const QString errorPrefix = QStringLiteral("com.fadeloom.app.Error.");

QString qName(std::string_view name)
{
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString newConnectionName()
{
    static std::atomic<int> count = 0;
    return QStringLiteral("fadeloom-instance-%1").arg(++count);
}

}  // namespace

class InstanceBus::Object final : public QDBusVirtualObject {
public:
    explicit Object(AnswerInstanceRequest answer)
        : answer_(std::move(answer))
    {
    }

    QString introspect(const QString&) const override
    {
        auto text = QStringLiteral("<interface name=\"%1\">").arg(interfaceName);
        for (const auto& each : instanceRequestNames)
            text += QStringLiteral("<method name=\"%1\"/>").arg(qName(each.name));
        return text + QStringLiteral("</interface>");
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const bool isOurs = message.interface().isEmpty() || message.interface() == interfaceName;
        const auto request = instanceRequestNamed(message.member().toStdString());
        if (!isOurs || !request)
            return false;
        const auto answer = answer_(*request);
        connection.send(answer == InstanceAnswer::done
                ? message.createReply()
                : message.createErrorReply(
                      errorPrefix + qName(nameOf(answer)), QStringLiteral("Fadeloom cannot do that now")));
        return true;
    }

private:
    const AnswerInstanceRequest answer_;
};

InstanceBus::InstanceBus(AnswerInstanceRequest answer)
    : connectionName_(newConnectionName())
    , bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName_))
    , object_(std::make_unique<Object>(std::move(answer)))
{
}

InstanceBus::~InstanceBus()
{
    bus_.unregisterObject(objectPath);
    QDBusConnection::disconnectFromBus(connectionName_);
}

bool InstanceBus::claim()
{
    // Whoever sees the name may call at once.
    if (!bus_.registerVirtualObject(objectPath, object_.get()))
        return false;
    const auto answer = bus_.interface()->registerService(
        busName, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    const bool isOurs = answer.isValid() && answer.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!isOurs)
        bus_.unregisterObject(objectPath);
    return isOurs;
}

QDBusMessage InstanceBus::call(InstanceRequest request, std::chrono::milliseconds patience)
{
    auto question =
        QDBusMessage::createMethodCall(busName, objectPath, interfaceName, qName(nameOf(request)));
    question.setAutoStartService(false);
    const auto wait = static_cast<int>(std::max(patience, std::chrono::milliseconds(1)).count());
    return bus_.call(question, QDBus::Block, wait);
}

bool InstanceBus::isHeldByInstance(std::chrono::milliseconds patience)
{
    const auto reply = call(InstanceRequest::ping, patience);
    if (reply.type() == QDBusMessage::ReplyMessage || reply.errorName().startsWith(errorPrefix))
        return true;
    switch (QDBusError(reply).type()) {
    case QDBusError::ServiceUnknown:  // It has just left: the name can be taken now.
        return true;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return runsOurExecutable();
    default:
        return false;
    }
}

bool InstanceBus::runsOurExecutable() const
{
    const QDBusReply<uint> owner = bus_.interface()->servicePid(busName);
    if (!owner.isValid())
        return false;
    const auto executable = [](const QString& process) {
        return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process))).fileName();
    };
    const auto ours = executable(QStringLiteral("self"));
    return !ours.isEmpty() && executable(QString::number(owner.value())) == ours;
}

std::optional<InstanceAnswer> InstanceBus::ask(InstanceRequest request, std::chrono::milliseconds patience)
{
    const auto reply = call(request, patience);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return InstanceAnswer::done;
    if (!reply.errorName().startsWith(errorPrefix))
        return std::nullopt;
    return instanceAnswerNamed(reply.errorName().mid(errorPrefix.size()).toStdString());
}

}  // namespace fadeloom
