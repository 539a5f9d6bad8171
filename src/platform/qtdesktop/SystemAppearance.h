// SPDX-License-Identifier: MIT
// The desktop's appearance.
#pragma once

#include "platform/qtdesktop/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>

#include <functional>

namespace fadeloom {

/// Queries the desktop's settings portal asynchronously. Qt 6.5 and later may know whether the desktop is dark; until
/// the reply, and without either, the desktop's palette decides. Needs a QGuiApplication. Thread: main.
class SystemAppearance final : public QObject {
    Q_OBJECT

public:
    /// `changed` is called whenever the result differs.
    explicit SystemAppearance(std::function<void(const DesktopAppearance&)> changed,
        const QDBusConnection& bus = QDBusConnection::sessionBus());

    [[nodiscard]] const DesktopAppearance& appearance() const { return appearance_; }

private Q_SLOTS:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void refresh();

    std::function<void(const DesktopAppearance&)> changed_;
    QDBusConnection bus_;
    PortalSettings settings_;
    DesktopAppearance appearance_;
};

}  // namespace fadeloom
