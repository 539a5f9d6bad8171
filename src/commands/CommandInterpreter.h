// SPDX-License-Identifier: MIT
// What can be asked of a running program in words: one line in, one line out. `help` lists the commands.
//
// APP is a bundle identifier, a name that no other app has, `pid:N`, or `@playing`, `@all` and `@call` for several at
// once; blanks need double quotes around them.
#pragma once

#include "commands/StateJson.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fadeloom {

class AudioController;
class Text;

/// Thread: main.
/// How a command went.
enum class ReplyKind {
    ok,
    usage,  // It was not understood.
    unknownName,  // No such app, output or preset.
    refused,  // It was understood, and cannot be done.
    denied,  // Not for this caller.
};

/// Who asks: what a sandbox keeps its programs from must not be had through us.
enum class Caller { trusted, sandboxed };

/// What the panel does when it is asked for; nothing where there is none.
struct PanelActions {
    std::function<void()> open = nullptr;
    std::function<void()> toggle = nullptr;
};

class CommandInterpreter {
public:
    struct Reply {
        std::string text;  // One line that begins with "ok" or "error"; empty for a line without any word.
        ReplyKind kind = ReplyKind::ok;
        bool asksToQuit = false;
        std::optional<std::vector<std::string>> apps =
            std::nullopt;  // Which it is about, if it is about apps.
        std::optional<Listing> listing = std::nullopt;

        /// The text without its first word.
        [[nodiscard]] std::string sentence() const;

        friend bool operator==(const Reply&, const Reply&) = default;
    };

    CommandInterpreter(AudioController& controller, const Text& text, PanelActions panel = {})
        : controller_(controller)
        , text_(text)
        , panel_(std::move(panel))
    {
    }

    /// Does what the line says. After an error nothing has changed.
    Reply interpret(std::string_view line, Caller caller = Caller::trusted);
    /// The same of words.
    Reply run(std::span<const std::string> words, Caller caller = Caller::trusted);
    /// What a reply says, as JSON in one line: the apps that it is about as they are now, the list, or its text.
    [[nodiscard]] std::string jsonOf(const Reply& reply) const;

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
    Reply status(Arguments arguments);
    Reply openPanel(Arguments arguments);
    Reply togglePanel(Arguments arguments);
    Reply exportSettings(Arguments arguments);
    Reply restoreSettings(Arguments arguments);
    Reply complete(Arguments arguments);
    Reply help(Arguments arguments);
    Reply quit(Arguments arguments);

    /// Changes the settings of the apps that the first argument names, all or none. `change` returns what went wrong, or
    /// nothing. The reply has `value` of each app's settings afterwards; without further arguments it is only read.
    template <typename Change, typename Value>
    Reply changeApps(std::string_view command, Arguments arguments, Change change, Value value);
    /// The same with all settings.
    template <typename Change>
    Reply changeSettings(std::string_view command, Arguments arguments, Change change);
    /// The device next to the app's present one, in the list's order; absent without devices.
    [[nodiscard]] std::optional<std::string> neighbourOf(const std::string& bundleID, bool isNext) const;
    [[nodiscard]] std::string appText(const std::string& bundleID) const;
    [[nodiscard]] std::string appLines() const;
    [[nodiscard]] std::string deviceLines() const;

    AudioController& controller_;
    const Text& text_;
    const PanelActions panel_;
};

}  // namespace fadeloom
