// SPDX-License-Identifier: MIT
// fadeloomctl: the command line client. It does not use Qt, so that key repeat costs next to nothing.
#include "ctl/Client.h"
#include "ctl/FocusedApp.h"
#include "ctl/Options.h"
#include "ctl/Status.h"
#include "ctl/Verbs.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace fadeloom::ctl;

constexpr std::string_view usageText =
    R"(usage: fadeloomctl [--json] [--quiet] [--wait[=SECONDS]] VERB [WORD...]
       fadeloomctl [--json|--waybar] [--wait[=SECONDS]] watch [apps|levels] [APP]
       fadeloomctl [--quiet] [--wait[=SECONDS]] -      commands from standard input, one per line

Sends a command to a running Fadeloom; "fadeloomctl help" lists them. For instance:
  fadeloomctl volume firefox +5%
  fadeloomctl mute @playing toggle
  fadeloomctl output firefox next
)";

std::string socketFile()
{
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    return (folder != nullptr ? std::string(folder) : "/run/user/" + std::to_string(getuid()))
        + "/fadeloom.socket";
}

/// Replaces "@focused" by the process of the focused window. nullopt if that is unknown; an error has been printed.
std::optional<std::vector<std::string>> withFocusedApp(std::span<const std::string_view> words)
{
    std::vector<std::string> result(words.begin(), words.end());
    const auto place = std::ranges::find(result, "@focused");
    if (place == result.end() || result.front() == "complete")
        return result;
    const auto process = focusedProcess();
    if (!process) {
        std::cerr << "fadeloomctl: " << process.error() << '\n';
        return std::nullopt;
    }
    *place = "pid:" + std::to_string(*process);
    return result;
}

Status dispatch(Client& client, Words words, const Options& options)
{
    const auto& verb = words.front();
    const bool isLevels = words.size() == 1 && verb == "levels";
    if (verb == "-" && words.size() == 1)
        return runLines(client, options);
    if (verb == "watch" || isLevels) {
        return watch(client, isLevels ? words : words.subspan(1), options);
    }
    if (verb == "complete")
        return complete(client, words);
    if (verb == "export" && words.size() <= 2 && options.form == Options::Form::text)
        return exportSettings(client, words);
    if (verb == "restore" && words.size() == 2)
        return restoreSettings(client, words, options);
    return printAnswer(client, words, options);
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string_view> all(argv + (argc > 0), argv + argc);
    if (all == std::vector<std::string_view>{"--help"}) {
        std::cout << usageText;
        return done;
    }
    std::span<const std::string_view> typed = all;
    const auto options = takeOptions(typed);
    const bool isForBar = options && options->form == Options::Form::waybar;
    if (!options || typed.empty() || (isForBar && typed.front() != "watch")) {
        std::cerr << usageText;
        return usage;
    }
    if (std::ranges::any_of(typed, [](auto word) { return word.find('\n') != std::string_view::npos; })) {
        std::cerr << "fadeloomctl: a word may not hold the end of a line\n";
        return usage;
    }
    const auto words = withFocusedApp(typed);
    if (!words)
        return unknownName;
    Client client(socketFile(), options->wait);
    if (!client.connect()) {
        std::cerr << "fadeloomctl: Fadeloom is not running\n";
        return notRunning;
    }
    return dispatch(client, *words, *options);
}
