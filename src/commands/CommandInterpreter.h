// SPDX-License-Identifier: MIT
// What can be asked of a running program in words: one line in, one line out.
//
//     volume APP 0.5          preset APP NAME             calls on|off
//     mute APP on|off         save-preset APP NAME        call-level 0.2
//     output APP UID|default  delete-preset NAME          call-app APP on|off
//     eq APP on|off           record APP start|stop       recordings PATH|default
//     band APP 1 DB           reveal                      login on|off
//     preamp APP DB           levels on|off               theme system|light|dark
//     default UID             list                        meters on|off
//     limit 1|1.25|1.5|2      help                        headroom on|off
//                             quit
//
// APP is a bundle identifier or a name that no other app has; blanks need double quotes around them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace fadeloom {

class AudioController;
class Text;

/// Thread: main.
class CommandInterpreter {
public:
    struct Reply {
        std::string text;  // One line that begins with "ok" or "error"; empty for a line without any word.
        bool asksToQuit = false;

        friend bool operator==(const Reply&, const Reply&) = default;
    };

    CommandInterpreter(AudioController& controller, const Text& text)
        : controller_(controller)
        , text_(text)
    {
    }

    /// Does what the line says. After an error nothing has changed.
    Reply interpret(std::string_view line);

private:
    using Arguments = std::span<const std::string>;
    struct Command;

    static std::span<const Command> commands();

    // Of one app; its name is the first argument.
    Reply setVolume(Arguments arguments);
    Reply setMuted(Arguments arguments);
    Reply setOutput(Arguments arguments);
    Reply setEqualizer(Arguments arguments);
    Reply setBand(Arguments arguments);
    Reply setPreamp(Arguments arguments);
    Reply applyPreset(Arguments arguments);
    Reply savePreset(Arguments arguments);
    Reply record(Arguments arguments);

    // Of all.
    Reply deletePreset(Arguments arguments);
    Reply setDefault(Arguments arguments);
    Reply setVolumeLimit(Arguments arguments);
    Reply setHeadroom(Arguments arguments);
    Reply setCalls(Arguments arguments);
    Reply setCallLevel(Arguments arguments);
    Reply setCallApp(Arguments arguments);
    Reply setRecordingsFolder(Arguments arguments);
    Reply setLogin(Arguments arguments);
    Reply setTheme(Arguments arguments);
    Reply setMeters(Arguments arguments);
    Reply watchLevels(Arguments arguments);
    Reply reveal(Arguments arguments);

    Reply list(Arguments arguments);
    Reply help(Arguments arguments);
    Reply quit(Arguments arguments);

    /// Changes the settings of the app that the first argument names. `change` returns what went wrong, or nothing.
    template <typename Change>
    Reply changeApp(std::string_view command, Arguments arguments, Change change);
    /// The same with all settings.
    template <typename Change>
    Reply changeSettings(std::string_view command, Arguments arguments, Change change);
    [[nodiscard]] std::string appText(const std::string& bundleID) const;

    AudioController& controller_;
    const Text& text_;
};

}  // namespace fadeloom
