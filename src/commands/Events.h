// SPDX-License-Identifier: MIT
// Differences between two states, as values. EventText.h formats them.
#pragma once

#include "control/AppEntry.h"
#include "control/AudioPermission.h"
#include "platform/OutputDevice.h"
#include "settings/AppAudioSettings.h"

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace fadeloom {

/// Apps are identified by bundle identifier, outputs by unique id.
namespace event {

struct AppAppeared {
    std::string id;
    std::string name;
};
struct AppDisappeared {
    std::string id;
};
struct AppPlaying {
    std::string id;
    bool isPlaying;
};
struct AppOutput {
    std::string id;
    std::optional<std::string> uid;  // Absent for an app that has no output.
};
struct AppChanged {
    std::string id;
    AppAudioSettings before;
    AppAudioSettings now;
};
struct OutputAdded {
    std::string uid;
    std::string name;
};
struct OutputRemoved {
    std::string uid;
    std::string name;
};
struct OutputRenamed {
    std::string uid;
    std::string name;
};
struct DefaultOutput {
    std::optional<std::string> uid;
};
struct Call {
    std::optional<std::string> id;
};
struct CallOffered {
    std::string id;
};
struct Recording {
    std::string id;
    bool isRunning;
};
struct RecordingSaved {
    std::filesystem::path file;
};
struct Permission {
    AudioPermission::State state;
};
struct Message {
    std::string text;
};
struct Levels {
    std::map<std::string, float> positions;  // 0 at -60 dB, 1 at full scale.
};

}  // namespace event

using Event = std::variant<event::AppAppeared, event::AppDisappeared, event::AppPlaying, event::AppOutput,
    event::AppChanged, event::OutputAdded, event::OutputRemoved, event::OutputRenamed, event::DefaultOutput,
    event::Call, event::CallOffered, event::Recording, event::RecordingSaved, event::Permission,
    event::Message, event::Levels>;
using Events = std::vector<Event>;

/// Where each app plays; nullopt for an app without output.
using AppOutputs = std::map<std::string, std::optional<std::string>>;
using AppSettingsByID = std::map<std::string, AppAudioSettings>;

[[nodiscard]] Events appEvents(std::span<const AppEntry> before, std::span<const AppEntry> now);
[[nodiscard]] Events appOutputEvents(const AppOutputs& before, const AppOutputs& now);
/// An app that is in only one of them has default settings in the other.
[[nodiscard]] Events appSettingsEvents(const AppSettingsByID& before, const AppSettingsByID& now);
[[nodiscard]] Events outputEvents(std::span<const OutputDevice> before, std::span<const OutputDevice> now);
[[nodiscard]] Events callOfferEvents(const std::set<std::string>& before, const std::set<std::string>& now);
[[nodiscard]] Events recordingEvents(const std::set<std::string>& before, const std::set<std::string>& now);

/// The app that an event is about; nullopt if none, or several.
[[nodiscard]] std::optional<std::string> appOf(const Event& event);

}  // namespace fadeloom
