// SPDX-License-Identifier: MIT
#include "ui/OutputEntries.h"

#include "control/OutputChoice.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace fadeloom {
namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("OutputEntries", text);
}

const OutputDevice* defaultDevice(const ControllerState& state)
{
    return *state.defaultDeviceUID ? findDevice(*state.devices, **state.defaultDeviceUID) : nullptr;
}

QString nameOf(const OutputDevice& device)
{
    return QString::fromStdString(device.name);
}

/// The devices that the app has chosen itself; empty for one that follows the system.
QStringList ownOutputNames(const ControllerState& state, const std::string& bundleID)
{
    const auto app = std::ranges::find(*state.apps, bundleID, &AppEntry::bundleID);
    if (app == state.apps->end())
        return {};
    const auto isDefault = [&](const std::string& uid) { return uid == *state.defaultDeviceUID; };
    if (std::ranges::all_of(app->ownOutputs, isDefault))
        return {};
    QStringList names;
    for (const auto& uid : app->ownOutputs) {
        if (const auto* const device = findDevice(*state.devices, uid))
            names.push_back(nameOf(*device));
    }
    return names;
}

}  // namespace

MenuEntries systemOutputEntries(const ControllerState& state)
{
    MenuEntries entries;
    for (const auto& device : *state.devices)
        entries.push_back({.text = nameOf(device),
            .key = QString::number(device.id),
            .isChecked = device.uid == *state.defaultDeviceUID});
    return entries;
}

QString systemOutputLabel(const ControllerState& state)
{
    const auto* const device = defaultDevice(state);
    return device ? nameOf(*device) : words(QT_TRANSLATE_NOOP("OutputEntries", "No output"));
}

MenuEntries appOutputEntries(const ControllerState& state, const std::string& bundleID)
{
    const auto chosen = chosenOutputUID(*state.settings, bundleID);
    const auto* const device = defaultDevice(state);
    MenuEntries entries;
    entries.push_back(
        {.text = device ? words(QT_TRANSLATE_NOOP("OutputEntries", "System Output (%1)")).arg(nameOf(*device))
                        : words(QT_TRANSLATE_NOOP("OutputEntries", "System Output")),
            .isChecked = !chosen});
    for (const auto& each : *state.devices)
        entries.push_back(
            {.text = nameOf(each), .key = QString::fromStdString(each.uid), .isChecked = chosen == each.uid});
    return entries;
}

QString appOutputLabel(const ControllerState& state, const std::string& bundleID)
{
    const auto chosen = chosenOutputUID(*state.settings, bundleID);
    if (const auto* const device = chosen ? findDevice(*state.devices, *chosen) : nullptr)
        return nameOf(*device);
    if (state.missingOutput->contains(bundleID))
        return words(QT_TRANSLATE_NOOP("OutputEntries", "Disconnected, muted"));
    if (const auto names = ownOutputNames(state, bundleID); !chosen && !names.empty())
        return words(QT_TRANSLATE_NOOP("OutputEntries", "%1, chosen by the app")).arg(names.join(" + "));
    return words(QT_TRANSLATE_NOOP("OutputEntries", "System Output"));
}

}  // namespace fadeloom
