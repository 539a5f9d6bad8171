// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtTrayIcon.h"

#include <QAction>
#include <QCursor>
#include <QGuiApplication>
#include <QKeySequence>
#include <QTimer>

#include <utility>

namespace fadeloom {

QtTrayIcon::QtTrayIcon(const QIcon& icon, std::function<void()> withoutHost)
    : icon_(icon)
    , withoutHost_(std::move(withoutHost))
{
    QObject::connect(&menu_, &QMenu::aboutToShow, &menu_, [this] {
        menuOpens_();
        fillMenu();
    });
}

void QtTrayIcon::show(const std::string& name)
{
    name_ = QString::fromStdString(name);
    if (!host_)
        host_.emplace([this](TrayHost::Kind kind) { hostFound(kind); });
}

void QtTrayIcon::hostFound(TrayHost::Kind kind)
{
    if (kind == TrayHost::Kind::none)
        return withoutHost_();
    tray_ = std::make_unique<QSystemTrayIcon>(icon_);
    tray_->setToolTip(name_);
    // A host over the bus shows the menu by itself and asks for its entries beforehand.
    fillMenu();
    tray_->setContextMenu(&menu_);
    QObject::connect(tray_.get(), &QSystemTrayIcon::activated, tray_.get(),
        [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
    tray_->show();
}

void QtTrayIcon::activated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason != QSystemTrayIcon::Trigger && reason != QSystemTrayIcon::MiddleClick)
        return;
    // On X11 the pointer is still where the click was; elsewhere nobody tells.
    lastClick_ = QGuiApplication::platformName() == QLatin1String("xcb") ? QRect(QCursor::pos(), QSize(1, 1))
                                                                         : QRect();
    if (QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier)) {
        // In a turn of its own: the panel closes before the menu opens, which would take a menu along.
        QTimer::singleShot(0, &menu_, [this] { menu_.popup(QCursor::pos()); });
        return;
    }
    clicked_();
}

QRect QtTrayIcon::place() const
{
    const QRect geometry = tray_ ? tray_->geometry() : QRect();
    return geometry.isValid() ? geometry : lastClick_;
}

void QtTrayIcon::fillMenu()
{
    menu_.clear();
    for (const auto& entry : build_()) {
        if (entry.isSeparator()) {
            menu_.addSeparator();
            continue;
        }
        auto* const action = menu_.addAction(QString::fromStdString(entry.title));
        if (!entry.key.empty())
            action->setShortcut(
                QKeySequence(QStringLiteral("Ctrl+") + QString::fromStdString(entry.key).toUpper()));
        action->setCheckable(entry.isChecked);
        action->setChecked(entry.isChecked);
        QObject::connect(action, &QAction::triggered, action, [chosen = entry.action] { chosen(); });
    }
}

}  // namespace fadeloom
