// SPDX-License-Identifier: MIT
// fadeloomctl: gives a running Fadeloom a command. Without Qt, so that a held key costs next to nothing.
#include "ctl/Client.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using fadeloom::ctl::Client;

// Documented in docs/control.md.
enum Status { done = 0, refused = 1, usage = 2, notRunning = 4, unknownName = 5, denied = 6, noAnswer = 7 };

constexpr std::string_view usageText = R"(usage: fadeloomctl [--quiet] [--wait[=SECONDS]] VERB [WORD...]
       fadeloomctl [--quiet] [--wait[=SECONDS]] -      commands from standard input, one a line

Gives a running Fadeloom a command; "fadeloomctl help" lists them. For instance:
  fadeloomctl volume firefox +5%
  fadeloomctl mute @playing toggle
  fadeloomctl output firefox next
)";

struct Options {
    bool isQuiet = false;
    std::chrono::seconds wait{0};
};

/// A word as it is sent: between double quotes, which keep blanks together.
std::string quoted(std::string_view word)
{
    std::string text = "\"";
    for (const char byte : word) {
        if (byte == '"' || byte == '\\')
            text += '\\';
        text += byte;
    }
    return text + '"';
}

std::string socketFile()
{
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    return (folder != nullptr ? std::string(folder) : "/run/user/" + std::to_string(getuid()))
        + "/fadeloom.socket";
}

bool connect(Client& client, std::chrono::seconds wait)
{
    const auto end = std::chrono::steady_clock::now() + wait;
    while (!client.connect(socketFile())) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(100ms);
    }
    return true;
}

/// What a command that reads one value prints: without the verb and the app, which whoever asked knows.
std::string_view valueIn(std::string_view text)
{
    const auto verb = text.find(' ');
    if (verb == std::string_view::npos || text.find("; ") != std::string_view::npos)
        return text;
    auto rest = text.substr(verb + 1);
    const auto end = rest.starts_with('"') ? rest.find("\" ", 1) : rest.find(' ');
    if (end == std::string_view::npos)
        return text;
    return rest.substr(end + (rest.starts_with('"') ? 2 : 1));
}

/// Whether the words ask for one value of an app.
bool isReading(std::span<const std::string_view> words)
{
    constexpr std::array values = {"volume", "mute", "output", "eq", "preset", "preamp"};
    return words.size() == 2 && std::ranges::find(values, words.front()) != values.end();
}

int run(Client& client, const std::string& line, bool isReading, bool isQuiet)
{
    const auto answer = client.run(line);
    if (!answer) {
        std::cerr << "fadeloomctl: the running Fadeloom does not answer, or is too old for this\n";
        return noAnswer;
    }
    const std::string_view text = *answer;
    const auto kind = text.substr(0, text.find(' '));
    const auto sentence = text.substr(std::min(text.size(), kind.size() + 1));
    if (kind == "ok") {
        constexpr std::string_view prefix = "ok ";
        const auto said = sentence.starts_with(prefix) ? sentence.substr(prefix.size()) : sentence;
        if (!isQuiet && !said.empty())
            std::cout << (isReading ? valueIn(said) : said) << '\n' << std::flush;
        return done;
    }
    constexpr std::string_view prefix = "error ";
    std::cerr << "fadeloomctl: " << (sentence.starts_with(prefix) ? sentence.substr(prefix.size()) : sentence)
              << '\n';
    return kind == "usage" ? usage : kind == "unknown" ? unknownName : kind == "denied" ? denied : refused;
}

int runLines(Client& client, bool isQuiet)
{
    int status = done;
    for (std::string line; std::getline(std::cin, line);) {
        if (const int outcome = run(client, line, false, isQuiet); outcome != done)
            status = outcome;
        if (status == noAnswer)
            break;
    }
    return status;
}

/// Takes the options off the front; false when there is one that is not known.
bool takeOptions(std::span<const std::string_view>& words, Options& options)
{
    constexpr std::string_view waitPrefix = "--wait=";
    for (; !words.empty() && words.front().starts_with("--"); words = words.subspan(1)) {
        const auto word = words.front();
        int seconds = 0;
        if (word == "--quiet") {
            options.isQuiet = true;
        } else if (word == "--wait") {
            options.wait = 24h * 365;
        } else if (word.starts_with(waitPrefix)
            && std::from_chars(word.data() + waitPrefix.size(), word.data() + word.size(), seconds).ptr
                == word.data() + word.size()
            && seconds >= 0) {
            options.wait = std::chrono::seconds(seconds);
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string_view> all(argv + (argc > 0), argv + argc);
    if (all == std::vector<std::string_view>{"--help"}) {
        std::cout << usageText;
        return done;
    }
    std::span<const std::string_view> words = all;
    Options options;
    if (!takeOptions(words, options) || words.empty()) {
        std::cerr << usageText;
        return usage;
    }
    std::string line;
    for (const auto word : words) {
        if (word.find('\n') != std::string_view::npos) {
            std::cerr << "fadeloomctl: a word may not hold the end of a line\n";
            return usage;
        }
        line += (line.empty() ? "" : " ") + quoted(word);
    }
    Client client;
    if (!connect(client, options.wait)) {
        std::cerr << "fadeloomctl: Fadeloom is not running\n";
        return notRunning;
    }
    if (words.size() == 1 && words.front() == "-")
        return runLines(client, options.isQuiet);
    return run(client, line, isReading(words), options.isQuiet);
}
