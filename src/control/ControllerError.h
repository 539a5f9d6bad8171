// SPDX-License-Identifier: MIT
// The errors that are reported to the user: a small record each, without text. The panel words and translates them
// (ui/MessageText), a headless run prints them in English.
#pragma once

#include "base/FileError.h"
#include "platform/LoginItemError.h"
#include "platform/TapError.h"
#include "settings/SettingsError.h"

#include <expected>
#include <string>
#include <variant>

namespace fadeloom {

/// A user preset cannot have the name of a built-in one.
struct BuiltInPresetName {
    std::string name{};
    friend bool operator==(const BuiltInPresetName&, const BuiltInPresetName&) = default;
};

/// An app that is to be recorded has no tap: it is not playing.
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
    std::string reason{};  // The system's own message.
    friend bool operator==(const RecordingNotWritten&, const RecordingNotWritten&) = default;
};

/// A recording has ended because the sample rate of its device has changed, and a file has only one.
struct RecordingRateChanged {
    std::string appName{};
    friend bool operator==(const RecordingRateChanged&, const RecordingRateChanged&) = default;
};

struct SettingsNotSaved {
    SettingsFileError reason{};
    friend bool operator==(const SettingsNotSaved&, const SettingsNotSaved&) = default;
};

/// The file exists and is left alone: it is never overwritten.
struct SettingsNotRead {
    SettingsFileError reason{};
    friend bool operator==(const SettingsNotRead&, const SettingsNotRead&) = default;
};

struct LoginItemRefused {
    LoginItemError reason{};
    friend bool operator==(const LoginItemRefused&, const LoginItemRefused&) = default;
};

/// The system did not accept a device as its default output.
struct OutputRefused {
    std::string deviceName{};
    friend bool operator==(const OutputRefused&, const OutputRefused&) = default;
};

using ControllerError =
    std::variant<BuiltInPresetName, NothingToRecord, RecordingNotStarted, RecordingNotWritten,
        RecordingRateChanged, SettingsNotSaved, SettingsNotRead, LoginItemRefused, OutputRefused>;

/// The outcome of a controller operation; errors are published as well.
using Outcome = std::expected<void, ControllerError>;

/// A sentence for a program without a window.
[[nodiscard]] std::string englishText(const ControllerError& error);

}  // namespace fadeloom
