// SPDX-License-Identifier: MIT
// The look that the desktop asks for.
#pragma once

#include "platform/qtdesktop/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>

#include <functional>

namespace fadeloom {

/// Asks the desktop's settings portal, whose answer comes later. Whether it is dark Qt may know (6.5 and later); until the
/// answer, and without either, the colours of the desktop's palette tell. Needs a QGuiApplication. Thread: main.
class SystemLook final : public QObject {
    Q_OBJECT

public:
    /// `changed` is called whenever the answer is another one.
    explicit SystemLook(std::function<void(const DesktopLook&)> changed,
        const QDBusConnection& bus = QDBusConnection::sessionBus());

    [[nodiscard]] const DesktopLook& look() const { return look_; }

private Q_SLOTS:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void refresh();

    std::function<void(const DesktopLook&)> changed_;
    QDBusConnection bus_;
    PortalSettings settings_;
    DesktopLook look_;
};

}  // namespace fadeloom
