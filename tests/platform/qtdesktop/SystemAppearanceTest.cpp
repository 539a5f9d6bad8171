// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/SystemAppearance.h"

#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/platform/qtdesktop/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>

#include <optional>
#include <vector>

namespace fadeloom {
namespace {

const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");

struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
};

QDBusArgument& operator<<(QDBusArgument& to, const Color& color)
{
    to.beginStructure();
    to << color.red << color.green << color.blue;
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, Color& color)
{
    from.beginStructure();
    from >> color.red >> color.green >> color.blue;
    from.endStructure();
    return from;
}

/// A desktop's settings, as provided by its portal.
class Portal : public QDBusVirtualObject {
public:
    explicit Portal(const QDBusConnection& bus)
        : bus_(bus)
    {
        bus_.registerVirtualObject(portalPath, this);
        bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    Portal(const Portal&) = delete;
    Portal& operator=(const Portal&) = delete;

    void set(const QString& nameSpace, const QString& key, const QVariant& value)
    {
        settings_[nameSpace][key] = value;
        auto signal = QDBusMessage::createSignal(
            portalPath, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal << nameSpace << key << QVariant::fromValue(QDBusVariant(value));
        bus_.send(signal);
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != QLatin1String("ReadAll"))
            return false;
        PortalSettings chosen;
        for (const auto& name : message.arguments().constFirst().toStringList()) {
            if (settings_.contains(name))
                chosen[name] = settings_[name];
        }
        return connection.send(message.createReply(QVariant::fromValue(chosen)));
    }

private:
    QDBusConnection bus_;
    PortalSettings settings_;
};

class SystemAppearanceTest : public testing::Test {
protected:
    SystemAppearanceTest()
    {
        qDBusRegisterMetaType<Color>();
        qDBusRegisterMetaType<PortalSettings>();
    }
    void startSystemAppearance()
    {
        system.emplace([this](const DesktopAppearance& now) { changes.push_back(now); }, ours);
    }
    bool becomes(const std::function<bool(const DesktopAppearance&)>& condition)
    {
        return happensSoon([&] { return condition(system->appearance()); });
    }

    OffscreenApplication application;
    PrivateBus bus;
    QDBusConnection ours = bus.connect();
    QDBusConnection theirs = bus.connect();
    Portal portal{theirs};
    std::vector<DesktopAppearance> changes;
    std::optional<SystemAppearance> system;
};

TEST_F(SystemAppearanceTest, isWhatThePortalSays)
{
    portal.set(appearance, QStringLiteral("color-scheme"), 1U);
    portal.set(appearance, QStringLiteral("contrast"), 1U);
    portal.set(appearance, QStringLiteral("accent-color"), QVariant::fromValue(Color{1, 0.5, 0}));
    portal.set(gnome, QStringLiteral("text-scaling-factor"), 1.5);
    portal.set(gnome, QStringLiteral("enable-animations"), false);

    startSystemAppearance();

    const DesktopAppearance expected{
        .isDark = true, .reducesMotion = true, .hasHighContrast = true, .textScale = 1.5, .accent = 0xFF8000};
    EXPECT_TRUE(becomes([&](const DesktopAppearance& now) { return now == expected; }));
}

TEST_F(SystemAppearanceTest, followsAndReportsEachChange)
{
    startSystemAppearance();
    happensSoon([] { return false; }, 100);
    ASSERT_TRUE(changes.empty());

    portal.set(appearance, QStringLiteral("color-scheme"), 1U);
    EXPECT_TRUE(becomes([](const DesktopAppearance& now) { return now.isDark; }));
    portal.set(appearance, QStringLiteral("color-scheme"), 2U);
    EXPECT_TRUE(becomes([](const DesktopAppearance& now) { return !now.isDark; }));
    portal.set(appearance, QStringLiteral("accent-color"), QVariant::fromValue(Color{0, 0, 1}));
    EXPECT_TRUE(becomes([](const DesktopAppearance& now) { return now.accent == 0x0000FFU; }));

    EXPECT_EQ(changes.size(), 3U);
}

TEST_F(SystemAppearanceTest, isNotChangedByUnrelatedSettings)
{
    startSystemAppearance();
    portal.set(QStringLiteral("org.example"), QStringLiteral("color-scheme"), 1U);
    portal.set(appearance, QStringLiteral("something"), 1U);

    happensSoon([] { return false; }, 100);

    EXPECT_TRUE(changes.empty());
}

TEST(PortalSettings, areTheDefaultsWhenEmpty)
{
    EXPECT_EQ(desktopAppearanceOf({}, true), DesktopAppearance{.isDark = true});
    EXPECT_EQ(desktopAppearanceOf({}, false), DesktopAppearance{});
}

TEST(PortalSettings, reduceMotionInThreeWays)
{
    EXPECT_TRUE(
        desktopAppearanceOf({{appearance, {{QStringLiteral("reduced-motion"), 1U}}}}, false).reducesMotion);
    EXPECT_TRUE(
        desktopAppearanceOf({{gnome, {{QStringLiteral("enable-animations"), false}}}}, false).reducesMotion);
    const auto kde = QStringLiteral("org.kde.kdeglobals.KDE");
    EXPECT_TRUE(desktopAppearanceOf(
        {{kde, {{QStringLiteral("AnimationDurationFactor"), QStringLiteral("0")}}}}, false)
            .reducesMotion);
    EXPECT_FALSE(desktopAppearanceOf(
        {{kde, {{QStringLiteral("AnimationDurationFactor"), QStringLiteral("0.5")}}}}, false)
            .reducesMotion);
}

TEST(PortalSettings, scaleTextByFactorOrFontWithinLimits)
{
    const auto factor = [](double value) {
        return desktopAppearanceOf({{gnome, {{QStringLiteral("text-scaling-factor"), value}}}}, false)
            .textScale;
    };
    EXPECT_EQ(factor(1.25), 1.25);
    EXPECT_EQ(factor(50), 2);
    EXPECT_EQ(factor(0), 0.8);
    const auto kde = QStringLiteral("org.kde.kdeglobals.General");
    const auto font = [&](const QString& value) {
        return desktopAppearanceOf({{kde, {{QStringLiteral("font"), value}}}}, false).textScale;
    };
    EXPECT_DOUBLE_EQ(font(QStringLiteral("Noto Sans,15,-1,5,50,0,0,0,0,0")), 1.5);
    EXPECT_EQ(font(QStringLiteral("Noto Sans")), 1);
}

}  // namespace
}  // namespace fadeloom
