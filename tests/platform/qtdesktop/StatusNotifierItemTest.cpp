// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/StatusNotifierItem.h"

#include "tests/platform/qtdesktop/BarOnBus.h"
#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/platform/qtdesktop/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QPixmap>

#include <memory>
#include <optional>
#include <vector>

namespace fadeloom {
namespace {

QIcon picture(const QColor& color, const QList<int>& sizes)
{
    QIcon icon;
    for (const int size : sizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(color);
        icon.addPixmap(pixmap);
    }
    return icon;
}

/// Receives the signals of an icon.
class Ear : public QObject {
    Q_OBJECT

public:
    int newIcons = 0;
    int newToolTips = 0;

public Q_SLOTS:
    void NewIcon() { ++newIcons; }
    void NewToolTip() { ++newToolTips; }
};

class StatusNotifierItemTest : public testing::Test {
protected:
    void makeIcon(const QString& name = {})
    {
        item.emplace(ours, QStringLiteral("Fadeloom"),
            StatusNotifierItem::Picture{name, picture(QColor(1, 2, 3, 255), {22, 44})});
        item->whenClicked([this](const StatusNotifierItem::Click& click) { clicks.push_back(click); });
    }
    QString service()
    {
        EXPECT_TRUE(happensSoon([&] { return !bar->icons().isEmpty(); }));
        return bar->icons().value(bar->icons().size() - 1);
    }
    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments)
    {
        auto message = QDBusMessage::createMethodCall(
            service(), QStringLiteral("/StatusNotifierItem"), interface, method);
        message.setArguments(arguments);
        const auto answer = theirs.asyncCall(message);
        EXPECT_TRUE(happensSoon([&] { return answer.isFinished(); }));
        return answer.reply();
    }
    QVariant property(const QString& name)
    {
        const auto answer = call(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
            {QStringLiteral("org.kde.StatusNotifierItem"), name});
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
        return answer.arguments().value(0).value<QDBusVariant>().variant();
    }
    void tell(const QString& method, const QVariantList& arguments)
    {
        const auto answer = call(QStringLiteral("org.kde.StatusNotifierItem"), method, arguments);
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    }

    OffscreenApplication application;
    PrivateBus bus;
    QDBusConnection ours = bus.connect();
    QDBusConnection theirs = bus.connect();
    std::optional<BarOnBus> bar{std::in_place, theirs};
    std::vector<StatusNotifierItem::Click> clicks;
    std::optional<StatusNotifierItem> item;
};

TEST_F(StatusNotifierItemTest, describesItself)
{
    makeIcon(QStringLiteral("com.fadeloom.app-symbolic"));

    EXPECT_EQ(property(QStringLiteral("Category")), QStringLiteral("ApplicationStatus"));
    EXPECT_EQ(property(QStringLiteral("Id")), QStringLiteral("fadeloom"));
    EXPECT_EQ(property(QStringLiteral("Title")), QStringLiteral("Fadeloom"));
    EXPECT_EQ(property(QStringLiteral("Status")), QStringLiteral("Active"));
    EXPECT_EQ(property(QStringLiteral("IconName")), QStringLiteral("com.fadeloom.app-symbolic"));
    EXPECT_EQ(property(QStringLiteral("ItemIsMenu")), false);
    EXPECT_EQ(qdbus_cast<BusToolTip>(property(QStringLiteral("ToolTip"))).title, QStringLiteral("Fadeloom"));
    EXPECT_EQ(property(QStringLiteral("Menu")).value<QDBusObjectPath>().path(), QStringLiteral("/MenuBar"));
}

TEST_F(StatusNotifierItemTest, givesItsPixelsInEverySizeInNetworkOrder)
{
    makeIcon();

    const auto pixmaps = qdbus_cast<QList<BusPixmap>>(property(QStringLiteral("IconPixmap")));

    ASSERT_EQ(pixmaps.size(), 2);
    EXPECT_EQ(pixmaps[0].width, 22);
    EXPECT_EQ(pixmaps[1].height, 44);
    EXPECT_EQ(pixmaps[1].pixels.size(), 44 * 44 * 4);
    EXPECT_EQ(pixmaps[0].pixels.first(4), QByteArray("\xFF\x01\x02\x03", 4));
}

TEST_F(StatusNotifierItemTest, signalsANewPicture)
{
    makeIcon();
    Ear ear;
    theirs.connect(service(), QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("NewIcon"), &ear, SLOT(NewIcon()));

    item->setPicture({{}, picture(Qt::white, {16})});

    EXPECT_TRUE(happensSoon([&] { return ear.newIcons == 1; }));
    EXPECT_EQ(qdbus_cast<QList<BusPixmap>>(property(QStringLiteral("IconPixmap"))).size(), 1);
}

TEST_F(StatusNotifierItemTest, forwardsThePositionOfAClick)
{
    makeIcon();

    std::vector<StatusNotifierItem::Click> middleClicks;
    item->whenMiddleClicked([&](const StatusNotifierItem::Click& click) { middleClicks.push_back(click); });

    tell(QStringLiteral("Activate"), {1062, 778});
    tell(QStringLiteral("SecondaryActivate"), {5, 6});

    ASSERT_EQ(clicks.size(), 1U);
    EXPECT_EQ(clicks[0].place, QPoint(1062, 778));
    EXPECT_TRUE(clicks[0].activationToken.isEmpty());
    ASSERT_EQ(middleClicks.size(), 1U);
    EXPECT_EQ(middleClicks[0].place, QPoint(5, 6));
}

TEST_F(StatusNotifierItemTest, normalizesTheScrollUnitsOfBars)
{
    makeIcon();
    std::vector<int> scrolled;
    item->whenScrolled([&](int notches) { scrolled.push_back(notches); });

    const auto vertical = QStringLiteral("vertical");
    tell(QStringLiteral("Scroll"), {120, vertical});
    tell(QStringLiteral("Scroll"), {-240, vertical});
    tell(QStringLiteral("Scroll"), {-2, vertical});
    tell(QStringLiteral("Scroll"), {1, vertical});
    for (int i = 0; i < 4; ++i)
        tell(QStringLiteral("Scroll"), {30, vertical});
    tell(QStringLiteral("Scroll"), {120, QStringLiteral("Horizontal")});

    EXPECT_EQ(scrolled, (std::vector{1, -2, 1, -1, 1}));
}

TEST_F(StatusNotifierItemTest, announcesAnotherDescription)
{
    makeIcon();
    Ear ear;
    theirs.connect(service(), QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("NewToolTip"), &ear, SLOT(NewToolTip()));

    item->setDescription(QStringLiteral("Half as loud"));
    item->setDescription(QStringLiteral("Half as loud"));

    EXPECT_TRUE(happensSoon([&] { return ear.newToolTips == 1; }));
    EXPECT_EQ(qdbus_cast<BusToolTip>(property(QStringLiteral("ToolTip"))).description,
        QStringLiteral("Half as loud"));
    EXPECT_EQ(ear.newToolTips, 1);
}

TEST_F(StatusNotifierItemTest, anActivationTokenBelongsToTheNextClickAlone)
{
    makeIcon();

    tell(QStringLiteral("ProvideXdgActivationToken"), {QStringLiteral("leave")});
    tell(QStringLiteral("Activate"), {1, 2});
    tell(QStringLiteral("Activate"), {1, 2});

    ASSERT_EQ(clicks.size(), 2U);
    EXPECT_EQ(clicks[0].activationToken, QStringLiteral("leave"));
    EXPECT_TRUE(clicks[1].activationToken.isEmpty());
}

TEST_F(StatusNotifierItemTest, aBarWithoutMenusRequestsOursAndScrollingHasNoEffect)
{
    makeIcon();
    std::vector<QPoint> wanted;
    item->whenMenuWanted([&](const StatusNotifierItem::Click& click) { wanted.push_back(click.place); });

    tell(QStringLiteral("ContextMenu"), {7, 8});
    tell(QStringLiteral("Scroll"), {120, QStringLiteral("vertical")});

    EXPECT_EQ(wanted, std::vector<QPoint>{QPoint(7, 8)});
    EXPECT_TRUE(clicks.empty());
}

TEST_F(StatusNotifierItemTest, registersWithABarThatStartsLaterOrRestarts)
{
    bar.reset();
    makeIcon();

    bar.emplace(theirs);
    const auto first = service();
    bar.reset();
    happensSoon([] { return false; }, 50);
    bar.emplace(theirs);

    EXPECT_EQ(service(), first);
    EXPECT_EQ(bar->icons().size(), 1);
}

TEST_F(StatusNotifierItemTest, leavesTheBusWhenDestroyed)
{
    makeIcon();
    const auto name = service();

    item.reset();

    EXPECT_TRUE(happensSoon([&] { return !theirs.interface()->isServiceRegistered(name).value(); }));
}

}  // namespace
}  // namespace fadeloom

#include "StatusNotifierItemTest.moc"
