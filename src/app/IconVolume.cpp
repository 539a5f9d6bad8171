// SPDX-License-Identifier: MIT
#include "app/IconVolume.h"

#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "engine/TapParameters.h"
#include "platform/StatusItem.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <utility>
#include <vector>

namespace fadeloom {
namespace {

std::string filledIn(std::string text, const std::string& name)
{
    const std::string place = "%1";
    const auto found = text.find(place);
    return found == std::string::npos ? text : text.replace(found, place.size(), name);
}

}  // namespace

IconVolume::IconVolume(AudioController& controller, StatusItem& icon, Translate translate)
    : controller_(controller)
    , icon_(icon)
    , translate_(std::move(translate))
    , known_(controller.state().settings->apps)
    , settings_(controller.state().settings.whenAssigned([this] { settingsChanged(); }))
    , apps_(controller.state().apps.whenAssigned([this] { describe(); }))
{
    icon_.whenScrolled([this](int notches) { scroll(notches); });
    icon_.whenMiddleClicked([this] { toggleMuted(); });
    describe();
}

bool IconVolume::isPlaying(const std::string& bundleID) const
{
    const auto& apps = *controller_.state().apps;
    const auto found = std::ranges::find(apps, bundleID, &AppEntry::bundleID);
    return found != apps.end() && found->isPlaying;
}

std::optional<std::string> IconVolume::chosenApp() const
{
    if (isPlaying(changedLast_))
        return changedLast_;
    std::optional<std::string> loudest;
    float highest = -1;
    for (const auto& entry : *controller_.state().apps) {
        const auto* const parameters = controller_.parametersOf(entry.bundleID);
        const float peak = parameters ? parameters->peak.load(std::memory_order_relaxed) : 0;
        if (entry.isPlaying && peak > highest) {
            loudest = entry.bundleID;
            highest = peak;
        }
    }
    return loudest;
}

void IconVolume::scroll(int notches)
{
    const auto id = chosenApp();
    if (!id)
        return;
    const float limit = controller_.state().settings->volumeLimit;
    controller_.editApp(*id, [&](AppAudioSettings& app) {
        // In whole steps, so that scrolling up and down cancels out.
        const float steps = std::round(app.volume / step) + static_cast<float>(notches);
        app.volume = std::clamp(steps * step, 0.0F, limit);
    });
}

void IconVolume::toggleMuted()
{
    if (const auto id = chosenApp())
        controller_.editApp(*id, [](AppAudioSettings& app) { app.muted = !app.muted; });
}

void IconVolume::settingsChanged()
{
    const auto& settings = *controller_.state().settings;
    std::vector<std::string> changed;
    for (const auto& entry : *controller_.state().apps) {
        const auto former = known_.find(entry.bundleID);
        const auto now = appSettings(settings, entry.bundleID);
        if (now != (former == known_.end() ? AppAudioSettings{} : former->second))
            changed.push_back(entry.bundleID);
    }
    if (changed.size() == 1)  // A change of all apps does not select one.
        changedLast_ = changed.front();
    known_ = settings.apps;
    describe();
}

void IconVolume::describe()
{
    const auto& apps = *controller_.state().apps;
    const auto chosen = std::ranges::find(apps, changedLast_, &AppEntry::bundleID);
    if (chosen != apps.end() && chosen->isPlaying)
        icon_.setDescription(
            filledIn(translate_("IconVolume", "Scroll: volume of %1. Middle click: mute."), chosen->name));
    else if (std::ranges::any_of(apps, &AppEntry::isPlaying))
        icon_.setDescription(
            translate_("IconVolume", "Scroll: volume of the loudest app. Middle click: mute."));
    else
        icon_.setDescription({});
}

}  // namespace fadeloom
