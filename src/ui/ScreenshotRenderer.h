// SPDX-License-Identifier: MIT
// Renders the panel's screens with fixed contents to image files, for the store and the web.
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

/// Call before creating the QGuiApplication: no display is used, two pixels per point.
void prepareEnvironment();

/// Writes "panel", "eq" and "settings", each followed by `suffix` and ".png", and prints one line for each to `lines`.
/// A file that cannot be written is reported only there. Nothing of `platform` is captured or changed.
void run(const Platform& platform, EngineLog& engineLog, const PanelParts& parts,
    const std::filesystem::path& outputDirectory, const std::string& suffix, Theme theme, DemoHome home,
    std::ostream& lines);

}  // namespace ScreenshotRenderer

}  // namespace fadeloom
