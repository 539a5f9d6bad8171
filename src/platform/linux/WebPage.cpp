// SPDX-License-Identifier: MIT
#include "platform/linux/WebPage.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace fadeloom {
namespace {

std::string valueOf(std::span<const std::string> arguments, std::string_view option)
{
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == option && i + 1 < arguments.size())
            return arguments[i + 1];
        if (argument.starts_with(option) && argument.substr(option.size()).starts_with('='))
            return std::string(argument.substr(option.size() + 1));
    }
    return {};
}

}  // namespace

std::string hostOf(std::string_view text)
{
    for (const std::string_view scheme : {"https://", "http://"}) {
        const auto start = text.find(scheme);
        if (start == std::string_view::npos)
            continue;
        const auto address = text.substr(start + scheme.size());
        std::string host(address.substr(0, address.find_first_of("/?#:\"'\\ \t")));
        std::ranges::transform(
            host, host.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return host;
    }
    return {};
}

std::string hostOfExec(std::string_view content)
{
    while (!content.empty()) {
        const auto end = content.find('\n');
        const auto line = content.substr(0, end);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        if (!line.starts_with("Exec=") && !line.starts_with("Exec "))
            continue;
        if (auto host = hostOf(line); !host.empty())
            return host;
    }
    return {};
}

std::string chromiumIDOf(std::span<const std::string> command)
{
    return valueOf(command, "--app-id");
}

std::string windowClassOf(std::span<const std::string> arguments)
{
    return valueOf(arguments, "--class");
}

}  // namespace fadeloom
