// SPDX-License-Identifier: MIT
#include "control/ControllerError.h"

namespace fadeloom {
namespace {

struct English {
    std::string operator()(const FileError& error) const { return error.description(); }
    std::string operator()(const TapError& error) const { return error.description(); }
    std::string operator()(const SettingsTooLarge& error) const
    {
        return "larger than " + std::to_string(error.maximumBytes) + " bytes";
    }
    std::string operator()(const ProgramUnknown&) const
    {
        return "The system does not tell where this program is.";
    }
    std::string operator()(const SystemMessage& words) const { return words.text; }

    std::string operator()(const BuiltInPresetName& error) const
    {
        return "“" + error.name + "” is a built-in preset name. Choose another name.";
    }
    std::string operator()(const NothingToRecord&) const
    {
        return "Start playback in this app first, then press record.";
    }
    std::string operator()(const RecordingNotStarted& error) const
    {
        return "Could not start recording: " + std::visit(*this, error.reason);
    }
    std::string operator()(const RecordingNotWritten& error) const
    {
        return "Recording of " + error.appName + " stopped: the file could not be written (" + error.reason
            + ").";
    }
    std::string operator()(const RecordingRateChanged& error) const
    {
        return "Recording of " + error.appName + " stopped: the output device changed its sample rate.";
    }
    std::string operator()(const SettingsNotSaved& error) const
    {
        return "Could not save settings: " + std::visit(*this, error.reason);
    }
    std::string operator()(const SettingsNotRead& error) const
    {
        return "Settings could not be read, and changes will not be saved: "
            + std::visit(*this, error.reason);
    }
    std::string operator()(const LoginItemRefused& error) const
    {
        return "Launch at login: " + std::visit(*this, error.reason);
    }
    std::string operator()(const OutputRefused& error) const
    {
        return "Could not switch output to " + error.deviceName + ".";
    }
};

}  // namespace

std::string englishText(const ControllerError& error)
{
    return std::visit(English{}, error);
}

}  // namespace fadeloom
