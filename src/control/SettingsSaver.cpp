// SPDX-License-Identifier: MIT
#include "control/SettingsSaver.h"

#include "settings/SettingsFile.h"

#include <utility>

namespace fadeloom {

SettingsSaver::SettingsSaver(
    BackgroundQueue& queue, MainLoop& mainLoop, std::filesystem::path file, Failed failed)
    : queue_(queue)
    , mainLoop_(mainLoop)
    , file_(std::move(file))
    , failed_(std::move(failed))
{
}

void SettingsSaver::schedule(const SettingsData& settings)
{
    if (saveWork_)
        saveWork_->cancel();

    auto report = life_.whileAlive([this](const SettingsFileError& error) {
        mainLoop_.requireCurrent();
        failed_(error);
    });
    // The work knows nothing of this object, which may be gone when it runs.
    saveWork_ = queue_.submit(
        delay, [snapshot = settings, file = file_, &mainLoop = mainLoop_, report = std::move(report)] {
            const auto saved = SettingsFile::save(snapshot, file);
            if (!saved)
                mainLoop.post([report, error = saved.error()] { report(error); });
        });
}

void SettingsSaver::flush()
{
    if (saveWork_)
        saveWork_->runNow();
}

}  // namespace fadeloom
