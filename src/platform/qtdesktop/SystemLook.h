// SPDX-License-Identifier: MIT
// Whether the desktop is dark or light.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

#include <functional>

namespace fadeloom {

/// Asks Qt where it knows (6.5 and later), else the desktop's settings portal, whose answer comes later; until then, and
/// without either, the colours of the desktop's palette tell. Needs a QGuiApplication. Thread: main.
class SystemLook final : public QObject {
    Q_OBJECT

public:
    /// `changed` is called whenever the answer is another one.
    explicit SystemLook(std::function<void(bool isDark)> changed);

    [[nodiscard]] bool isDark() const { return isDark_; }

private Q_SLOTS:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void set(bool isDark);

    std::function<void(bool isDark)> changed_;
    bool isDark_ = false;
};

}  // namespace fadeloom
