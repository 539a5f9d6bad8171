// SPDX-License-Identifier: MIT
// Renders the panel's screens with fixed contents into picture files, for the store and the web.
#pragma once

#include "platform/Platform.h"
#include "settings/AppearanceSettings.h"
#include "ui/DemoData.h"

#include <filesystem>
#include <iosfwd>
#include <string>

namespace fadeloom {

class EngineLog;
struct PanelParts;

namespace ScreenshotRenderer {

/// What has to be set before the QGuiApplication is made: no display is used, two pixels stand for each point.
void prepareEnvironment();

/// Writes "panel", "eq" and "settings", each followed by `suffix` and ".png", and prints one line for each to `lines`. A
/// file that cannot be written is told there and nowhere else. Nothing of `platform` is heard or changed.
void run(const Platform& platform, EngineLog& engineLog, const PanelParts& parts,
    const std::filesystem::path& outputDirectory, const std::string& suffix, Theme look, DemoHome home,
    std::ostream& lines);

}  // namespace ScreenshotRenderer

}  // namespace fadeloom
