// SPDX-License-Identifier: MIT
// The controller without an audio system: its state is fixed, and no file of the user is touched.
#include "control/AudioController.h"
#include "settings/SettingsFile.h"

namespace fadeloom {

AudioController::AudioController(const Platform& platform, EngineLog& engineLog, const DemoContents& demo)
    : platform_(platform)
    , engineLog_(engineLog)
    , isDemo_(true)
    , isSaving_(false)
    , state_{.apps = demo.apps,
          .devices = demo.devices,
          .defaultDeviceUID = demo.devices.empty() ? std::nullopt : std::optional(demo.devices.front().uid),
          .permission = AudioPermission::State::granted,
          .callOffers = demo.callOffers,
          .settings = demo.settings}
    , saver_(platform.utilityQueue, platform.mainLoop, SettingsFile::defaultURL(platform.folders), {})
{
    applyAppearance();
    levels_.show(demo.levels);
}

}  // namespace fadeloom
