// SPDX-License-Identifier: MIT
// Instances that communicate over a real message bus.
#include "tests/platform/linux/InstanceStage.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class SingleInstanceBusTest : public InstanceStage {
protected:
    SingleInstanceBusTest() { EXPECT_EQ(instance->claim(InstanceRequest::open), Start::first); }

    /// Another bus client calls one of our methods.
    static QDBusMessage call(
        const std::string& method, const QString& interface = QStringLiteral("com.fadeloom.app"))
    {
        auto answer = std::async(std::launch::async, [&] {
            const auto connection =
                QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("caller"));
            const auto reply =
                connection.call(QDBusMessage::createMethodCall(QStringLiteral("com.fadeloom.app"),
                    QStringLiteral("/com/fadeloom/app"), interface, QString::fromStdString(method)));
            QDBusConnection::disconnectFromBus(QStringLiteral("caller"));
            return reply;
        });
        while (answer.wait_for(0s) != std::future_status::ready)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return answer.get();
    }
    bool isNameTaken() const
    {
        auto connection =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("looker"));
        const bool isTaken = connection.interface()->isServiceRegistered(QStringLiteral("com.fadeloom.app"));
        QDBusConnection::disconnectFromBus(QStringLiteral("looker"));
        return isTaken;
    }
    /// Removes the other way to reach our instance.
    void removeSocket() const { std::filesystem::remove(folder.path() / "fadeloom.socket"); }

    PrivateBus bus{busFolder};
    TemporaryFolder elsewhere;
    std::optional<SingleInstance> instance{folder.path()};
};

TEST_F(SingleInstanceBusTest, aSecondStartOpensThePanelOfTheFirst)
{
    serve(*instance);
    removeSocket();

    EXPECT_EQ(outcomeOf(startAnother()), Start::answered);

    EXPECT_THAT(asked, ElementsAre("open"));
}

TEST_F(SingleInstanceBusTest, itsMethodsAreForEverybody)
{
    serve(*instance);

    for (const auto* const method : {"Open", "Toggle", "Quit", "Ping"})
        EXPECT_EQ(call(method).type(), QDBusMessage::ReplyMessage) << method;

    EXPECT_THAT(asked, ElementsAre("open", "toggle", "quit"));
}

TEST_F(SingleInstanceBusTest, itsMethodsCanBeIntrospected)
{
    const auto text = call("Introspect", QStringLiteral("org.freedesktop.DBus.Introspectable"));

    ASSERT_EQ(text.type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(text.arguments().at(0).toString().toStdString(), HasSubstr("<method name=\"Toggle\"/>"));
}

TEST_F(SingleInstanceBusTest, otherMethodsAreErrors)
{
    serve(*instance);

    EXPECT_EQ(call("Destroy").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Open", QStringLiteral("com.example.other")).type(), QDBusMessage::ErrorMessage);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SingleInstanceBusTest, anInstanceWithoutAPanelSaysSo)
{
    instance->serve({});
    removeSocket();

    EXPECT_EQ(outcomeOf(startAnother()), Start::withoutPanel);
    EXPECT_EQ(call("Toggle").errorName().toStdString(), "com.fadeloom.app.Error.NoPanel");
}

TEST_F(SingleInstanceBusTest, oneThatIsExitingIsWaitedForAndSucceeded)
{
    serve(*instance);
    instance->beginEnding();
    removeSocket();
    auto second = startAnother();
    runFor(300ms);
    EXPECT_EQ(second.wait_for(0s), std::future_status::timeout);

    instance.reset();

    EXPECT_EQ(outcomeOf(std::move(second)), Start::first);
}

TEST_F(SingleInstanceBusTest, oneThatDoesNotReplyTimesOutAfterTwoSeconds)
{
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_EQ(startAnother().get(), Start::unanswered);  // While our event loop is blocked.

    EXPECT_GE(std::chrono::steady_clock::now() - begin, 1900ms);
}

TEST_F(SingleInstanceBusTest, theNameIsReleasedWithTheInstance)
{
    EXPECT_TRUE(isNameTaken());

    instance.reset();

    EXPECT_FALSE(isNameTaken());
}

TEST_F(SingleInstanceBusTest, theNameIsUniqueAcrossRuntimeFolders)
{
    serve(*instance);

    EXPECT_EQ(outcomeOf(startAnother(InstanceRequest::open, elsewhere.path())), Start::answered);

    EXPECT_THAT(asked, ElementsAre("open"));
    EXPECT_FALSE(std::filesystem::exists(elsewhere.path() / "fadeloom.lock"));
}

/// An unrelated program owns our name on the bus.
class StrangerOnTheBusTest : public InstanceStage {
protected:
    StrangerOnTheBusTest()
    {
        auto connection =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("stranger"));
        EXPECT_TRUE(connection.registerService(QStringLiteral("com.fadeloom.app")));
    }
    ~StrangerOnTheBusTest() override { QDBusConnection::disconnectFromBus(QStringLiteral("stranger")); }

    PrivateBus bus{busFolder};
};

TEST_F(StrangerOnTheBusTest, doesNotKeepTheProgramFromStarting)
{
    EXPECT_EQ(outcomeOf(startAnother()), Start::first);
}

TEST_F(StrangerOnTheBusTest, doesNotKeepASecondStartFromTheFirst)
{
    SingleInstance first(folder.path());
    EXPECT_EQ(first.claim(InstanceRequest::open), Start::first);
    serve(first);

    EXPECT_EQ(outcomeOf(startAnother()), Start::answered);

    EXPECT_THAT(asked, ElementsAre("open"));
}

}  // namespace
}  // namespace fadeloom
