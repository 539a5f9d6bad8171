// SPDX-License-Identifier: MIT
#include "app/linux/HomePanel.h"

#include "app/linux/HomeDesktop.h"
#include "app/linux/HomePlatform.h"

#include <QString>

#include <iostream>

namespace fadeloom {
namespace {

const std::string leftKey = "PanelPosition";

std::optional<QPoint> savedWindowPosition()
{
    const auto values = homeUserDefaults().stringList(leftKey);
    if (!values || values->size() != 2)
        return std::nullopt;
    bool isX = false;
    bool isY = false;
    const QPoint place(QString::fromStdString(values->front()).toInt(&isX),
        QString::fromStdString(values->back()).toInt(&isY));
    return isX && isY ? std::optional(place) : std::nullopt;
}

void saveWindowPosition(QPoint place)
{
    homeUserDefaults().setStringList(leftKey, {std::to_string(place.x()), std::to_string(place.y())});
}

}  // namespace

HomePanel::HomePanel(HomeDesktop& desktop)
    : desktop_(desktop)
    , popover_([&desktop] { return desktop.icon().place(); },
          [&desktop] { return desktop.appearance().reducesMotion; })
{
    desktop_.whenWithoutTray([this] { showAsOrdinaryWindow(); });
}

HomePanel::~HomePanel()
{
    desktop_.whenWithoutTray([] { });
}

void HomePanel::showAsOrdinaryWindow()
{
    std::cerr << "fadeloom: this desktop shows no status icons; the panel is an ordinary window\n";
    popover_.turnIntoOrdinaryWindow(savedWindowPosition(), [](QPoint place) { saveWindowPosition(place); });
    popover_.show();
}

}  // namespace fadeloom
