// SPDX-License-Identifier: MIT
// How a view writes: it reads the record, changes one thing and hands the record back.
#pragma once

#include "control/AppSettings.h"
#include "control/AudioController.h"

#include <string>
#include <utility>

namespace fadeloom {

template <typename Change>
void editSettings(AudioController& controller, Change change)
{
    auto settings = *controller.state().settings;
    change(settings);
    controller.setSettings(std::move(settings));
}

/// The same for one app; an app that is left with the defaults has no entry afterwards.
template <typename Change>
void editAppSettings(AudioController& controller, const std::string& bundleID, Change change)
{
    editSettings(controller, [&](SettingsData& settings) {
        auto app = appSettings(settings, bundleID);
        change(app);
        storeAppSettings(settings, bundleID, app);
    });
}

}  // namespace fadeloom
