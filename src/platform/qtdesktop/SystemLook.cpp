// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/SystemLook.h"

#include <QDBusConnection>
#include <QDBusMessage>
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
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");

// The portal's numbers: 0 is no preference, 1 dark, 2 light.
constexpr unsigned darkScheme = 1;
constexpr unsigned lightScheme = 2;

bool isPaletteDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

}  // namespace

SystemLook::SystemLook(std::function<void(bool isDark)> changed)
    : changed_(std::move(changed))
    , isDark_(isPaletteDark())
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    auto* const hints = QGuiApplication::styleHints();
    const auto read = [this, hints] {
        if (hints->colorScheme() != Qt::ColorScheme::Unknown)
            set(hints->colorScheme() == Qt::ColorScheme::Dark);
    };
    connect(hints, &QStyleHints::colorSchemeChanged, this, read);
    read();
    if (hints->colorScheme() != Qt::ColorScheme::Unknown)
        return;
#endif
    askPortal();
}

void SystemLook::askPortal()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qRegisterMetaType<QDBusVariant>();  // Without it the signal below is never delivered.
    bus.connect(portalService, portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto question =
        QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, QStringLiteral("Read"));
    question << appearance << colorScheme;
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (reply.isError())
            return;
        // A variant within a variant.
        const auto inner = reply.value().variant();
        settingChanged(appearance, colorScheme,
            inner.canConvert<QDBusVariant>() ? inner.value<QDBusVariant>() : QDBusVariant(inner));
    });
}

void SystemLook::settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value)
{
    if (nameSpace != appearance || key != colorScheme)
        return;
    const auto scheme = value.variant().toUInt();
    set(scheme == darkScheme || (scheme != lightScheme && isPaletteDark()));
}

void SystemLook::set(bool isDark)
{
    if (std::exchange(isDark_, isDark) != isDark)
        changed_(isDark);
}

}  // namespace fadeloom
