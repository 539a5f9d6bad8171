// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxEnvironment.h"

#include "platform/linux/TextParts.h"

#include <unistd.h>

#include <algorithm>
#include <string_view>

namespace fadeloom {

namespace {

using Folders = std::vector<std::filesystem::path>;

void add(Folders& folders, const std::filesystem::path& folder)
{
    if (folder.is_absolute() && std::ranges::find(folders, folder) == folders.end())
        folders.push_back(folder);
}

Folders list(std::string_view text)
{
    Folders folders;
    for (const auto part : parts(text, ':'))
        add(folders, std::filesystem::path{part});
    return folders;
}

Folders applicationFolders(const Variables& variables)
{
    const auto userData = folderNamed(variables, "XDG_DATA_HOME", homeFolder(variables) / ".local/share");
    Folders data{userData};
    for (const auto& folder : list(variables("XDG_DATA_DIRS").value_or("/usr/local/share:/usr/share")))
        add(data, folder);
    add(data, userData / "flatpak/exports/share");
    add(data, "/var/lib/flatpak/exports/share");
    add(data, "/var/lib/snapd/desktop");
    for (auto& folder : data)
        folder /= "applications";
    return data;
}

}  // namespace

std::vector<std::string> languageKeys(const std::string& locale)
{
    const auto modifierAt = std::min(locale.find('@'), locale.size());
    const std::string modifier = locale.substr(modifierAt);
    const std::string country = locale.substr(0, std::min(locale.find('.'), modifierAt));
    const std::string language = country.substr(0, country.find('_'));
    if (language.empty() || language == "C" || language == "POSIX")
        return {};
    std::vector<std::string> keys;
    for (const std::string& key : {country + modifier, country, language + modifier, language})
        if (std::ranges::find(keys, key) == keys.end())
            keys.push_back(key);
    return keys;
}

LinuxEnvironment linuxEnvironment(const Variables& variables)
{
    LinuxEnvironment environment;
    environment.applicationFolders = applicationFolders(variables);
    environment.programFolders = list(variables("PATH").value_or("/usr/local/bin:/usr/bin:/bin"));
    environment.user = getuid();
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const auto locale = variables(name)) {
            environment.languages = languageKeys(*locale);
            break;
        }
    return environment;
}

}  // namespace fadeloom
