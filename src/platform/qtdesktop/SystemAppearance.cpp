// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/SystemAppearance.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>

#include <utility>

namespace fadeloom {
namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");

bool isPaletteDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

/// Qt's colour scheme; the portal's if Qt does not know.
bool isDark(const DesktopAppearance& told)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const auto scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown)
        return scheme == Qt::ColorScheme::Dark;
#endif
    return told.isDark;
}

DesktopAppearance readAppearance(const PortalSettings& settings)
{
    auto appearance = desktopAppearanceOf(settings, isPaletteDark());
    appearance.isDark = isDark(appearance);
    // On X11 it is included in the display's resolution, with which Qt scales everything.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        appearance.textScale = 1;
    return appearance;
}

}  // namespace

SystemAppearance::SystemAppearance(
    std::function<void(const DesktopAppearance&)> changed, const QDBusConnection& bus)
    : changed_(std::move(changed))
    , bus_(bus)
    , appearance_(readAppearance({}))
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, [this] { refresh(); });
#endif
    askPortal();
}

void SystemAppearance::askPortal()
{
    if (!bus_.isConnected())
        return;
    // Unless the types are registered, neither the signal nor the reply is delivered.
    qRegisterMetaType<QDBusVariant>();
    qDBusRegisterMetaType<PortalSettings>();
    bus_.connect(portalService, portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto question =
        QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, QStringLiteral("ReadAll"));
    question << portalNameSpaces();
    auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<PortalSettings> reply = *answer;
        answer->deleteLater();
        if (reply.isError())
            return;
        settings_ = reply.value();
        refresh();
    });
}

void SystemAppearance::settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value)
{
    if (!portalNameSpaces().contains(nameSpace))
        return;
    settings_[nameSpace][key] = value.variant();
    refresh();
}

void SystemAppearance::refresh()
{
    const auto now = readAppearance(settings_);
    if (std::exchange(appearance_, now) != now)
        changed_(now);
}

}  // namespace fadeloom
