// SPDX-License-Identifier: MIT
// Text commands to a running program: one line in, one line out. `help` lists them.
//
// APP is a bundle identifier, a unique name, `pid:N`, or `@playing`, `@all` and `@call` for several; arguments with
// spaces need double quotes.
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
/// The outcome of a command.
enum class ReplyKind {
    ok,
    usage,  // Unknown command or wrong arguments.
    unknownName,  // No such app, output or preset.
    refused,  // Understood, but cannot be done.
    denied,  // Not permitted for this caller.
};

/// Who sends a command: one sent from a sandbox must not escape it through us.
enum class Caller { trusted, sandboxed };

/// What to do with the panel; empty functions if there is none.
struct PanelActions {
    std::function<void()> open = nullptr;
    std::function<void()> toggle = nullptr;
};

class CommandInterpreter {
public:
    struct Reply {
        std::string text;  // One line that begins with "ok" or "error"; empty for a blank line.
        ReplyKind kind = ReplyKind::ok;
        bool asksToQuit = false;
        // The apps that it concerns, if any.
        std::optional<std::vector<std::string>> apps = std::nullopt;
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

    /// Executes a line. After an error nothing has changed.
    Reply interpret(std::string_view line, Caller caller = Caller::trusted);
    /// Executes a command given as words.
    Reply run(std::span<const std::string> words, Caller caller = Caller::trusted);
    /// A reply as one line of JSON: the current state of the apps it concerns, the list, or its text.
    [[nodiscard]] std::string jsonOf(const Reply& reply) const;

private:
    using Arguments = std::span<const std::string>;
    struct Command;

    static std::span<const Command> commands();

    // For one app; its name is the first argument.
    Reply setVolume(Arguments arguments);
    Reply setMuted(Arguments arguments);
    Reply setOutput(Arguments arguments);
    Reply setEqualizer(Arguments arguments);
    Reply setBand(Arguments arguments);
    Reply setPreamp(Arguments arguments);
    Reply applyPreset(Arguments arguments);
    Reply savePreset(Arguments arguments);
    Reply record(Arguments arguments);

    // For everything else.
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

    /// Changes the settings of the apps that the first argument denotes, all or none. `change` returns an error, or
    /// nullopt. The reply has `value` of each app's settings afterwards; without further arguments they are only read.
    template <typename Change, typename Value>
    Reply changeApps(std::string_view command, Arguments arguments, Change change, Value value);
    /// The same for the global settings.
    template <typename Change>
    Reply changeSettings(std::string_view command, Arguments arguments, Change change);
    /// The device next to the app's current one, in list order; nullopt without devices.
    [[nodiscard]] std::optional<std::string> neighbourOf(const std::string& bundleID, bool isNext) const;
    [[nodiscard]] std::string appText(const std::string& bundleID) const;
    [[nodiscard]] std::string appLines() const;
    [[nodiscard]] std::string deviceLines() const;

    AudioController& controller_;
    const Text& text_;
    const PanelActions panel_;
};

}  // namespace fadeloom
