// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/BusMenu.h"

#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/platform/qtdesktop/PrivateBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <string>
#include <vector>

namespace fadeloom {
namespace {

using testing::ElementsAre;

class BusMenuTest : public testing::Test {
protected:
    BusMenuTest()
    {
        menu.setBuilder([this] { return content; });
        menu.whenOpens([this] { opened += 1; });
    }
    StatusMenuEntry entry(const std::string& title)
    {
        return {.title = title, .action = [this, title] { done.push_back(title); }};
    }
    BusMenuLayout layout(int parent = 0, int depth = -1, const QStringList& names = {})
    {
        BusMenuLayout result;
        revision = menu.GetLayout(parent, depth, names, result);
        return result;
    }
    std::vector<std::string> labels()
    {
        std::vector<std::string> result;
        for (const auto& child : layout().children)
            result.push_back(child.properties.value(QStringLiteral("label")).toString().toStdString());
        return result;
    }
    int idOf(const std::string& label)
    {
        for (const auto& child : layout().children) {
            if (child.properties.value(QStringLiteral("label")).toString().toStdString() == label)
                return child.id;
        }
        return -1;
    }
    void click(int id)
    {
        menu.Event(id, QStringLiteral("clicked"), QDBusVariant(QString()), 0);
        QCoreApplication::processEvents();
    }

    OffscreenApplication application;
    StatusMenu content{entry("Open"), {}, entry("Quit")};
    BusMenu menu;
    std::vector<std::string> done;
    int opened = 0;
    uint revision = 0;
};

TEST_F(BusMenuTest, hasTheEntriesInOrder)
{
    EXPECT_THAT(labels(), ElementsAre("Open", "", "Quit"));
    EXPECT_EQ(layout().children[1].properties.value(QStringLiteral("type")), QStringLiteral("separator"));
    EXPECT_EQ(layout().properties.value(QStringLiteral("children-display")), QStringLiteral("submenu"));
}

TEST_F(BusMenuTest, returnsOnlyTheRequestedDepthAndProperties)
{
    EXPECT_TRUE(layout(0, 0).children.isEmpty());
    EXPECT_TRUE(layout(0, -1, {QStringLiteral("type")}).children[0].properties.isEmpty());
    EXPECT_TRUE(layout(idOf("Open")).children.isEmpty());
}

TEST_F(BusMenuTest, marksCheckedEntries)
{
    content[0].isChecked = true;

    const auto children = layout().children;

    EXPECT_EQ(children[0].properties.value(QStringLiteral("toggle-type")), QStringLiteral("checkmark"));
    EXPECT_EQ(children[0].properties.value(QStringLiteral("toggle-state")), 1);
    EXPECT_FALSE(children[2].properties.contains(QStringLiteral("toggle-type")));
}

TEST_F(BusMenuTest, anUnderscoreIsNotAMnemonic)
{
    content[0].title = "a_b";

    EXPECT_THAT(labels(), ElementsAre("a__b", "", "Quit"));
}

TEST_F(BusMenuTest, runsAClickedEntryAfterReplyingToTheBar)
{
    menu.Event(idOf("Quit"), QStringLiteral("clicked"), QDBusVariant(QString()), 0);
    EXPECT_TRUE(done.empty());

    QCoreApplication::processEvents();

    EXPECT_THAT(done, ElementsAre("Quit"));
}

TEST_F(BusMenuTest, otherEventsAreIgnored)
{
    menu.Event(idOf("Quit"), QStringLiteral("hovered"), QDBusVariant(QString()), 0);
    click(4711);
    click(layout().children[1].id);

    EXPECT_TRUE(done.empty());
    EXPECT_EQ(opened, 0);
    menu.Event(0, QStringLiteral("opened"), QDBusVariant(QString()), 0);
    EXPECT_EQ(opened, 1);
}

TEST_F(BusMenuTest, anEntryKeepsItsIdWhileOthersComeAndGo)
{
    const int quit = idOf("Quit");
    content = {entry("Update"), entry("Open"), {}, entry("Quit")};

    EXPECT_TRUE(menu.AboutToShow(0));
    EXPECT_EQ(idOf("Quit"), quit);
    click(quit);

    EXPECT_THAT(done, ElementsAre("Quit"));
}

TEST_F(BusMenuTest, requestsALayoutUpdateOnlyIfSomethingChanged)
{
    layout();
    const auto before = revision;
    EXPECT_FALSE(menu.AboutToShow(0));

    content[0].isChecked = true;

    EXPECT_TRUE(menu.AboutToShow(0));
    layout();
    EXPECT_GT(revision, before);
    EXPECT_EQ(opened, 2);
}

TEST_F(BusMenuTest, repliesForSeveralEntries)
{
    const int quit = idOf("Quit");
    QList<int> errors;

    EXPECT_EQ(menu.GetGroupProperties({}, {}).size(), 4);
    EXPECT_EQ(menu.GetGroupProperties({quit, 99}, {}).size(), 1);
    EXPECT_TRUE(menu.AboutToShowGroup({0, 99}, errors).isEmpty());
    EXPECT_EQ(errors, QList<int>{99});
    EXPECT_EQ(menu.EventGroup({{quit, QStringLiteral("clicked"), QDBusVariant(QString()), 0},
                  {99, QStringLiteral("clicked"), QDBusVariant(QString()), 0}}),
        QList<int>{99});
    QCoreApplication::processEvents();
    EXPECT_THAT(done, ElementsAre("Quit"));
}

// Bars are strict about the types.
TEST_F(BusMenuTest, implementsTheProtocolOnTheBus)
{
    PrivateBus bus;
    auto ours = bus.connect();
    auto theirs = bus.connect();
    const auto path = QStringLiteral("/MenuBar");
    ours.registerObject(path, &menu,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
            | QDBusConnection::ExportAllProperties);
    const auto ask = [&](const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(
            ours.baseService(), path, QStringLiteral("com.canonical.dbusmenu"), method);
        message.setArguments(arguments);
        const auto answer = theirs.asyncCall(message);
        EXPECT_TRUE(happensSoon([&] { return answer.isFinished(); }));
        return answer.reply();
    };

    EXPECT_EQ(
        ask(QStringLiteral("GetLayout"), {0, -1, QStringList()}).signature(), QStringLiteral("u(ia{sv}av)"));
    EXPECT_EQ(ask(QStringLiteral("GetGroupProperties"), {QVariant::fromValue(QList<int>{0}), QStringList()})
                  .signature(),
        QStringLiteral("a(ia{sv})"));
    EXPECT_EQ(ask(QStringLiteral("AboutToShow"), {0}).signature(), QStringLiteral("b"));
    EXPECT_EQ(ask(QStringLiteral("AboutToShowGroup"), {QVariant::fromValue(QList<int>{0})}).signature(),
        QStringLiteral("aiai"));
    EXPECT_EQ(ask(QStringLiteral("Event"),
                  {idOf("Open"), QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(QString())), 0U})
                  .type(),
        QDBusMessage::ReplyMessage);
    EXPECT_TRUE(happensSoon([&] { return !done.empty(); }));
}

}  // namespace
}  // namespace fadeloom
