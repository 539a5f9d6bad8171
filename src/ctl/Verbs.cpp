// SPDX-License-Identifier: MIT
#include "ctl/Verbs.h"

#include "ctl/AnswerText.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace fadeloom::ctl {
namespace {

Status complain(Status status, std::string_view sentence)
{
    std::cerr << "fadeloomctl: " << sentence << '\n';
    return status;
}

Status reportNoReply()
{
    return complain(noAnswer, "the running Fadeloom does not answer, or is too old for this");
}

/// Whether the words query a single value of an app.
bool isReading(Words words)
{
    constexpr std::array values = {"volume", "mute", "output", "eq", "preset", "preamp"};
    return words.size() == 2 && std::ranges::find(values, words.front()) != values.end();
}

bool isList(Words words)
{
    return !words.empty() && (words.front() == "list" || words.front() == "help");
}

void printText(Words words, std::string_view said)
{
    if (isReading(words)) {
        std::cout << valueIn(said) << '\n';
    } else if (!words.empty() && words.front() == "status") {
        takeWord(said);
        const auto name = takeWord(said);
        std::cout << name << (name.empty() ? "" : " ") << said << '\n';
    } else if (isList(words)) {
        for (const auto part : partsOf(said))
            std::cout << part << '\n';
    } else if (!said.empty()) {
        std::cout << said << '\n';
    }
    std::cout << std::flush;
}

Status printAnswerLine(Client& client, Words words, const std::string& line, const Options& options)
{
    const bool isJson = options.form == Options::Form::json;
    const auto answer = client.ask((isJson ? "Json " : "Run ") + line);
    if (!answer)
        return reportNoReply();
    const auto [status, sentence] = Answer::parse(*answer);
    if (status != done)
        return complain(status, sentence);
    if (!options.isQuiet && isJson)
        std::cout << sentence << '\n' << std::flush;
    else if (!options.isQuiet)
        printText(words, sentence);
    return done;
}

struct Candidate {
    std::string_view word;
    std::string_view summary;
};
constexpr std::array ownVerbs = {Candidate{"watch", "follows what happens"}};
constexpr std::array watchWords = {
    Candidate{"apps", "what happens to apps"}, Candidate{"levels", "how loud they are"}};
constexpr std::array optionNames = {Candidate{"--json", "answers as JSON"},
    Candidate{"--quiet", "prints nothing but errors"}, Candidate{"--wait", "waits for a Fadeloom to start"},
    Candidate{"--waybar", "for watch: what waybar takes"}};

Status printCandidates(Client& client, Words words)
{
    const auto answer = client.ask("Run " + lineOf(words));
    if (!answer)
        return reportNoReply();
    const auto [status, sentence] = Answer::parse(*answer);
    if (status != done)
        return complain(status, sentence);
    const auto parts = partsOf(sentence);
    for (auto part : std::span(parts).subspan(1)) {
        const auto word = takeWord(part);
        std::cout << word << '\t' << takeWord(part) << '\n';
    }
    std::cout << std::flush;
    return done;
}

}  // namespace

Status printAnswer(Client& client, Words words, const Options& options)
{
    return printAnswerLine(client, words, lineOf(words), options);
}

Status runLines(Client& client, const Options& options)
{
    auto status = done;
    for (std::string line; status != noAnswer && std::getline(std::cin, line);) {
        if (const auto outcome = printAnswerLine(client, {}, line, options); outcome != done)
            status = outcome;
    }
    return status;
}

Status watch(Client& client, Words words, const Options& options)
{
    using enum Options::Form;
    const auto* const form = options.form == json ? "json" : options.form == waybar ? "waybar" : "text";
    while (true) {
        const auto begun = client.ask("Watch " + std::string(form) + " " + lineOf(words));
        if (!begun)
            return reportNoReply();
        if (const auto [status, sentence] = Answer::parse(*begun); status != done)
            return complain(status, sentence);
        std::string last;
        const bool isEnded = client.follow([&](const std::string& line) {
            last = line;
            std::cout << line << '\n' << std::flush;
        });
        if (!isEnded)
            return done;
        const bool isDropped = options.form != waybar && last != "end" && last != R"({"event":"end"})";
        if (options.wait.count() == 0)
            return isDropped ? complain(noAnswer, "the running Fadeloom has ended the connection")
                             : complain(notRunning, "Fadeloom has ended");
        if (!client.connect())
            return complain(notRunning, "Fadeloom is not running");
    }
}

Status exportSettings(Client& client, Words words)
{
    const auto answer = client.ask("Run export");
    if (!answer)
        return reportNoReply();
    auto [status, sentence] = Answer::parse(*answer);
    if (status != done)
        return complain(status, sentence);
    takeWord(sentence);
    if (words.size() < 2) {
        std::cout << sentence << '\n' << std::flush;
        return done;
    }
    const std::filesystem::path file = words[1];
    auto part = file;
    part += ".part";
    umask(S_IRWXG | S_IRWXO);  // Readable only by the user.
    std::ofstream output(part);
    output << sentence << '\n';
    output.close();
    std::error_code error;
    if (output)
        std::filesystem::rename(part, file, error);
    if (output && !error)
        return done;
    const auto reason = error ? error.message() : std::string(std::strerror(errno));
    std::filesystem::remove(part, error);
    return complain(refused, "cannot write " + words[1] + ": " + reason);
}

Status restoreSettings(Client& client, Words words, const Options& options)
{
    std::ifstream file;
    if (words[1] != "-")
        file.open(words[1]);
    std::istream& input = words[1] == "-" ? std::cin : file;
    std::string text{std::istreambuf_iterator<char>(input), {}};
    if (words[1] != "-" && (!file.is_open() || file.bad()))
        return complain(refused, "cannot read " + words[1]);
    // In JSON, line feeds occur only between tokens.
    std::ranges::replace_if(text, [](char byte) { return byte == '\n' || byte == '\r'; }, ' ');
    return printAnswer(client, std::array<std::string, 2>{"restore", std::move(text)}, options);
}

Status complete(Client& client, Words words)
{
    const bool isParted = words.size() > 1 && words[1] == "--";
    auto typed = words.subspan(isParted ? 2 : 1);
    while (typed.size() > 1 && typed.front().starts_with("--"))
        typed = typed.subspan(1);
    const std::string current = typed.empty() ? "" : typed.back();
    const auto offer = [&](std::span<const Candidate> candidates) {
        for (const auto& [word, summary] : candidates) {
            if (word.starts_with(current))
                std::cout << word << '\t' << summary << '\n';
        }
    };
    std::vector<std::string> asked{"complete"};
    asked.insert(asked.end(), typed.begin(), typed.end());
    if (typed.size() <= 1) {
        offer(ownVerbs);
        if (current.starts_with('-'))
            offer(optionNames);
    } else if (typed.front() == "watch") {
        if (typed.size() == 2)
            offer(watchWords);
        asked = {"complete", "status", current};
    }
    return printCandidates(client, asked);
}

}  // namespace fadeloom::ctl
