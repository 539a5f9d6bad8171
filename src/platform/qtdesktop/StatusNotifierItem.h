// SPDX-License-Identifier: MIT
// The status icon on D-Bus, which most desktops' bars support.
#pragma once

#include "platform/qtdesktop/BusIconTypes.h"
#include "platform/qtdesktop/BusMenu.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QPoint>

#include <functional>

namespace fadeloom {

/// Implements org.kde.StatusNotifierItem, and registers with every watcher that appears, including one that restarts.
/// Thread: main.
class StatusNotifierItem final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ iconThemePath)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(QList<fadeloom::BusPixmap> IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ none)
    Q_PROPERTY(QString AttentionIconName READ none)
    Q_PROPERTY(fadeloom::BusToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menuPath)

public:
    /// The picture: by its name in the icon theme if the bar can resolve it, else the pixels of `icon`.
    struct Picture {
        QString name;
        QIcon icon;
    };

    /// What a bar reports for a click: its position, which may be nonsense, and the activation token, which may be
    /// empty.
    struct Click {
        QPoint place;
        QString activationToken;
    };

    /// `bus` is the session bus; `title` is for the tooltip and accessibility.
    StatusNotifierItem(const QDBusConnection& bus, const QString& title, Picture picture);
    StatusNotifierItem(const StatusNotifierItem&) = delete;
    StatusNotifierItem& operator=(const StatusNotifierItem&) = delete;
    ~StatusNotifierItem() override;

    /// The menu of a right click.
    [[nodiscard]] BusMenu& menu() { return menu_; }
    void whenClicked(std::function<void(const Click&)> clicked) { clicked_ = std::move(clicked); }
    void whenMiddleClicked(std::function<void(const Click&)> clicked) { middleClicked_ = std::move(clicked); }
    /// Called when the wheel is scrolled: see `StatusItem::whenScrolled`.
    void whenScrolled(std::function<void(int notches)> scrolled) { scrolled_ = std::move(scrolled); }
    /// Called for a right click in a bar without menu support.
    void whenMenuWanted(std::function<void(const Click&)> wanted) { menuWanted_ = std::move(wanted); }
    void setPicture(Picture picture);
    /// Below the title in the tooltip.
    void setDescription(const QString& text);

    [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] QString id() const { return QStringLiteral("fadeloom"); }
    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
    [[nodiscard]] int windowId() const { return 0; }
    [[nodiscard]] QString iconThemePath() const { return {}; }
    [[nodiscard]] QString iconName() const { return picture_.name; }
    [[nodiscard]] QList<BusPixmap> iconPixmap() const { return pixmaps_; }
    [[nodiscard]] QString none() const { return {}; }
    [[nodiscard]] BusToolTip toolTip() const { return {{}, {}, title_, description_}; }
    [[nodiscard]] bool itemIsMenu() const { return false; }
    [[nodiscard]] QDBusObjectPath menuPath() const;

public Q_SLOTS:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);
    /// Precedes the click that it belongs to.
    void ProvideXdgActivationToken(const QString& token) { token_ = token; }

Q_SIGNALS:
    void NewIcon();
    void NewTitle();
    void NewToolTip();
    void NewStatus(const QString& status);

private:
    void announce();
    [[nodiscard]] Click clickAt(int x, int y);

    QDBusConnection bus_;
    QString service_;
    const QString title_;
    QString description_;
    int scrolledAngle_ = 0;  // Since the last whole notch.
    Picture picture_;
    QList<BusPixmap> pixmaps_;
    BusMenu menu_;
    std::function<void(const Click&)> clicked_ = [](const Click&) { };
    std::function<void(const Click&)> middleClicked_ = [](const Click&) { };
    std::function<void(int)> scrolled_ = [](int) { };
    std::function<void(const Click&)> menuWanted_ = [](const Click&) { };
    QString token_;
    QDBusServiceWatcher watcher_;
};

}  // namespace fadeloom
