// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtTrayIcon.h"

#include "platform/qtdesktop/MenuOrder.h"
#include "platform/qtdesktop/Screens.h"

#include <QAction>
#include <QCursor>
#include <QGuiApplication>
#include <QKeySequence>
#include <QTimer>

#include <utility>

namespace fadeloom {
namespace {

std::optional<QRect> pointerPlace()
{
    return isOnXDesktop() ? std::optional(QRect(QCursor::pos(), QSize(1, 1))) : std::nullopt;
}

}  // namespace

QtTrayIcon::QtTrayIcon(StatusNotifierItem::Picture picture, std::function<void()> withoutHost)
    : picture_(std::move(picture))
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
        host_ = std::make_unique<TrayHost>([this](TrayHost::Kind kind) { hostFound(kind); });
}

void QtTrayIcon::setPicture(StatusNotifierItem::Picture picture)
{
    picture_ = std::move(picture);
    if (item_)
        item_->setPicture(picture_);
    if (embedded_)
        embedded_->setIcon(picture_.icon);
}

void QtTrayIcon::setDescription(const std::string& text)
{
    description_ = QString::fromStdString(text);
    if (item_)
        item_->setDescription(description_);
    if (embedded_)
        embedded_->setToolTip(hint());
}

QString QtTrayIcon::hint() const
{
    return description_.isEmpty() ? name_ : name_ + QLatin1Char('\n') + description_;
}

void QtTrayIcon::hostFound(TrayHost::Kind kind)
{
    switch (kind) {
    case TrayHost::Kind::statusNotifier:
        return joinBus();
    case TrayHost::Kind::embedding:
        return embed();
    case TrayHost::Kind::none:
        return withoutHost_();
    }
}

void QtTrayIcon::joinBus()
{
    embedded_.reset();  // The new bar may support both protocols.
    item_ = std::make_unique<StatusNotifierItem>(QDBusConnection::sessionBus(), name_, picture_);
    item_->menu().setBuilder([this] { return clickFirst(build_()); });
    item_->menu().whenOpens([this] { menuOpens_(); });
    item_->setDescription(description_);
    item_->whenScrolled([this](int notches) { scrolled_(notches); });
    item_->whenClicked([this](const StatusNotifierItem::Click& click) { clickedInBar(click); });
    item_->whenMiddleClicked([this](const StatusNotifierItem::Click& click) {
        // There a left click opens the menu, and this is the only click that can open the panel.
        if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME")))
            clickedInBar(click);
        else
            middleClicked_();
    });
    item_->whenMenuWanted([this](const StatusNotifierItem::Click& click) {
        // On Wayland only a window can open a menu: open the panel instead.
        if (QGuiApplication::platformName() == QLatin1String("xcb"))
            popUpMenu(pointerPlace().value_or(QRect(click.place, QSize(1, 1))).topLeft());
        else
            clickedAt(iconPlace(click.place, currentScreens()));
    });
}

void QtTrayIcon::clickedInBar(const StatusNotifierItem::Click& click)
{
    if (!click.activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", click.activationToken.toUtf8());  // Where Qt expects it.
    const auto told = iconPlace(click.place, currentScreens());
    clickedAt(told ? told : pointerPlace());
}

void QtTrayIcon::embed()
{
    embedded_ = std::make_unique<QSystemTrayIcon>(picture_.icon);
    embedded_->setToolTip(hint());
    fillMenu();  // A menu without entries would not open.
    embedded_->setContextMenu(&menu_);
    QObject::connect(embedded_.get(), &QSystemTrayIcon::activated, embedded_.get(),
        [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                clickedAt(pointerPlace());
            else if (reason == QSystemTrayIcon::MiddleClick)
                middleClicked_();
        });
    embedded_->show();
}

void QtTrayIcon::clickedAt(std::optional<QRect> place)
{
    if (QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier)) {
        // Deferred: the panel closes before the menu opens, because it would close a menu as well.
        QTimer::singleShot(0, &menu_, [this] { popUpMenu(QCursor::pos()); });
        return;
    }
    lastClick_ = {place, true};
    clicked_();
    lastClick_.isUnderPointer = false;
}

void QtTrayIcon::popUpMenu(QPoint place)
{
    fillMenu();
    menu_.popup(place);
}

IconPlace QtTrayIcon::place() const
{
    const QRect geometry = embedded_ ? embedded_->geometry() : QRect();
    return geometry.isValid() ? IconPlace{geometry, lastClick_.isUnderPointer} : lastClick_;
}

void QtTrayIcon::fillMenu()
{
    menu_.clear();
    for (const auto& entry : clickFirst(build_())) {
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
