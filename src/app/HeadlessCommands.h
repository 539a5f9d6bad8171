// SPDX-License-Identifier: MIT
// What can be asked of a running program in words: one line in, one line out.
//
//     volume APP 0.5          output APP UID|default      list
//     mute APP on|off         default UID                 help
//     eq APP on|off                                       quit
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
class HeadlessCommands {
public:
    struct Reply {
        std::string text;  // One line that begins with "ok" or "error"; empty for a line without any word.
        bool asksToQuit = false;

        friend bool operator==(const Reply&, const Reply&) = default;
    };

    HeadlessCommands(AudioController& controller, const Text& text)
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

    Reply setVolume(Arguments arguments);
    Reply setMuted(Arguments arguments);
    Reply setEqualizer(Arguments arguments);
    Reply setOutput(Arguments arguments);
    Reply setDefault(Arguments arguments);
    Reply list(Arguments arguments);
    Reply help(Arguments arguments);
    Reply quit(Arguments arguments);

    /// Changes the settings of the app that the first argument names. `change` returns what went wrong, or nothing.
    template <typename Change>
    Reply changeApp(std::string_view command, Arguments arguments, Change change);
    [[nodiscard]] std::string appText(const std::string& bundleID) const;

    AudioController& controller_;
    const Text& text_;
};

}  // namespace fadeloom
