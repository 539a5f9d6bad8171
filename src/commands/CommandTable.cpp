// SPDX-License-Identifier: MIT
#include "commands/CommandTable.h"

namespace fadeloom {

std::span<const CommandInterpreter::Command> CommandInterpreter::commands()
{
    using enum Access;
    using enum Argument;
    using Self = CommandInterpreter;
    static constexpr std::array all = {
        Command{"volume", "APP [0.5|50%|+5%|-3dB|=-6dB]", 1, 2, everyone, &Self::setVolume, {app, volume},
            "an app's volume"},
        Command{
            "mute", "APP [on|off|toggle]", 1, 2, everyone, &Self::setMuted, {app, choice}, "silences an app"},
        Command{"output", "APP [UID|NAME|default|next|previous]", 1, 2, everyone, &Self::setOutput,
            {app, output}, "where an app plays"},
        Command{"eq", "APP [on|off|toggle]", 1, 2, everyone, &Self::setEqualizer, {app, choice},
            "switches an app's equalizer"},
        Command{"band", "APP 1 DB", 3, 3, everyone, &Self::setBand, {app, text, text},
            "the gain of one of ten bands"},
        Command{
            "preamp", "APP [DB]", 1, 2, everyone, &Self::setPreamp, {app, text}, "the gain before the bands"},
        Command{"preset", "APP [NAME]", 1, 2, everyone, &Self::applyPreset, {app, preset},
            "applies a preset to an app"},
        Command{"save-preset", "APP NAME", 2, 2, trusted, &Self::savePreset, {app, text},
            "saves an app's curve as a preset"},
        Command{"delete-preset", "NAME", 1, 1, trusted, &Self::deletePreset, {ownPreset},
            "deletes a user preset"},
        Command{"record", "APP start|stop", 2, 2, trusted, &Self::record, {app, choice},
            "records what an app plays"},
        Command{"reveal", "", 0, 0, trusted, &Self::reveal, {}, "shows the last recording"},
        Command{"recordings", "PATH|default", 1, 1, trusted, &Self::setRecordingsFolder, {choice},
            "the folder for recordings"},
        Command{"default", "UID", 1, 1, trusted, &Self::setDefault, {device}, "the system's default output"},
        Command{"limit", "1|1.25|1.5|2", 1, 1, trusted, &Self::setVolumeLimit, {choice},
            "the highest volume of an app"},
        Command{"headroom", "on|off|toggle", 1, 1, trusted, &Self::setHeadroom, {choice},
            "compensates for the equalizer's loudness"},
        Command{"calls", "on|off|toggle", 1, 1, trusted, &Self::setCalls, {choice},
            "ducks other apps during a call"},
        Command{"call-level", "0.2", 1, 1, trusted, &Self::setCallLevel, {text}, "the level of ducked apps"},
        Command{"call-app", "APP on|off|toggle", 2, 2, trusted, &Self::setCallApp, {app, choice},
            "treats an app's use of the microphone as a call"},
        Command{"login", "on|off|toggle", 1, 1, trusted, &Self::setLogin, {choice}, "starts at login"},
        Command{
            "theme", "system|light|dark", 1, 1, trusted, &Self::setTheme, {choice}, "the panel's appearance"},
        Command{"meters", "on|off|toggle", 1, 1, trusted, &Self::setMeters, {choice}, "meters in the panel"},
        Command{"levels", "on|off|toggle", 1, 1, trusted, &Self::watchLevels, {choice},
            "measures levels for list"},
        Command{"list", "[apps|outputs|presets]", 0, 1, everyone, &Self::list, {choice}, "how things stand"},
        Command{"status", "[APP]", 0, 1, everyone, &Self::status, {app}, "one line for a status bar"},
        Command{"open", "", 0, 0, everyone, &Self::openPanel, {}, "shows the panel"},
        Command{"toggle", "", 0, 0, everyone, &Self::togglePanel, {}, "opens or closes the panel"},
        Command{"export", "", 0, 0, trusted, &Self::exportSettings, {}, "all settings in one line of JSON"},
        Command{
            "restore", "JSON", 1, 1, trusted, &Self::restoreSettings, {text}, "restores exported settings"},
        Command{"complete", "[WORD...]", 0, 64, everyone, &Self::complete, {}, "completions for these words"},
        Command{"help", "", 0, 0, everyone, &Self::help, {}, "the commands"},
        Command{"quit", "", 0, 0, trusted, &Self::quit, {}, "ends Fadeloom"},
    };
    return all;
}

}  // namespace fadeloom
