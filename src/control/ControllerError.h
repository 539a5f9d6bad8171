// SPDX-License-Identifier: MIT
// What can go wrong that the user hears of: a small record for each, without words. The panel words and translates them
// (ui/MessageText), a headless run says them in English.
#pragma once

#include "base/FileError.h"
#include "platform/LoginItemError.h"
#include "platform/TapError.h"
#include "settings/SettingsError.h"

#include <expected>
#include <string>
#include <variant>

namespace fadeloom {

/// A preset of the user cannot have the name of a built-in one.
struct BuiltInPresetName {
    std::string name{};
    friend bool operator==(const BuiltInPresetName&, const BuiltInPresetName&) = default;
};

/// An app that is to be recorded has no tap: it does not play.
struct NothingToRecord {
    friend bool operator==(const NothingToRecord&, const NothingToRecord&) = default;
};

struct RecordingNotStarted {
    std::variant<FileError, TapError> reason{};
    friend bool operator==(const RecordingNotStarted&, const RecordingNotStarted&) = default;
};

/// A recording has ended because nothing more could be written.
struct RecordingNotWritten {
    std::string appName{};
    std::string reason{};  // The system's own words.
    friend bool operator==(const RecordingNotWritten&, const RecordingNotWritten&) = default;
};

/// A recording has ended because its device has another sample rate, and a file has one.
struct RecordingRateChanged {
    std::string appName{};
    friend bool operator==(const RecordingRateChanged&, const RecordingRateChanged&) = default;
};

struct SettingsNotSaved {
    SettingsFileError reason{};
    friend bool operator==(const SettingsNotSaved&, const SettingsNotSaved&) = default;
};

/// They are there, and stay as they are: nothing is saved in their place.
struct SettingsNotRead {
    SettingsFileError reason{};
    friend bool operator==(const SettingsNotRead&, const SettingsNotRead&) = default;
};

struct LoginItemRefused {
    LoginItemError reason{};
    friend bool operator==(const LoginItemRefused&, const LoginItemRefused&) = default;
};

/// The system did not make a device its default output.
struct OutputRefused {
    std::string deviceName{};
    friend bool operator==(const OutputRefused&, const OutputRefused&) = default;
};

using ControllerError =
    std::variant<BuiltInPresetName, NothingToRecord, RecordingNotStarted, RecordingNotWritten,
        RecordingRateChanged, SettingsNotSaved, SettingsNotRead, LoginItemRefused, OutputRefused>;

/// How an operation of the controller went; what went wrong is published as well.
using Outcome = std::expected<void, ControllerError>;

/// A sentence for a program without a window.
[[nodiscard]] std::string englishText(const ControllerError& error);

}  // namespace fadeloom
