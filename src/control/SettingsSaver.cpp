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
    snapshot_ = std::make_shared<Snapshot>(settings);
    if (isFinished_) {
        finish();
        return;
    }

    auto report = life_.whileAlive([this](const SettingsFileError& error) {
        mainLoop_.requireCurrent();
        failed_(error);
    });
    // The task must not refer to this object, which may be gone when it runs.
    saveWork_ = queue_.submit(
        delay, [snapshot = snapshot_, file = file_, &mainLoop = mainLoop_, report = std::move(report)] {
            const auto saved = SettingsFile::save(snapshot->settings, file);
            snapshot->isSaved = saved.has_value();
            if (!saved)
                mainLoop.post([report, error = saved.error()] { report(error); });
        });
}

void SettingsSaver::finish()
{
    isFinished_ = true;
    if (auto work = std::exchange(saveWork_, nullptr))
        work->runNow();
    if (!snapshot_ || snapshot_->isSaved)
        return;
    const auto saved = SettingsFile::save(snapshot_->settings, file_);
    snapshot_->isSaved = saved.has_value();
    if (!saved)
        failed_(saved.error());
}

}  // namespace fadeloom
