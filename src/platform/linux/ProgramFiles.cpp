// SPDX-License-Identifier: MIT
#include "platform/linux/ProgramFiles.h"

#include <unistd.h>

#include <fstream>
#include <utility>

namespace fadeloom {

namespace {

bool isInside(const std::filesystem::path& file, const std::filesystem::path& folder)
{
    const auto way = file.lexically_relative(folder);
    return !way.empty() && *way.begin() != "..";
}

}  // namespace

bool isProgram(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0;
}

std::filesystem::path findProgram(const std::string& name, const std::vector<std::filesystem::path>& folders)
{
    if (name.find('/') != std::string::npos)
        return name.starts_with('/') && isProgram(name) ? std::filesystem::path{name}
                                                        : std::filesystem::path{};
    for (const auto& folder : folders)
        if (isProgram(folder / name))
            return folder / name;
    return {};
}

std::filesystem::path ownExecutable()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

std::filesystem::path startedFile(const Variables& variables, const std::filesystem::path& executable)
{
    // Children of an AppImage inherit its variables: they apply to us only if we are unpacked there.
    const auto unpacked = folderNamed(variables, "APPDIR", {});
    if (unpacked.empty() || !isInside(executable, unpacked))
        return executable;
    return folderNamed(variables, "APPIMAGE", executable);
}

StartCommand ownCommand()
{
    StartCommand command{startedFile(processVariables()), {}};
    std::ifstream words{"/proc/self/cmdline", std::ios::binary};
    std::string word;
    std::getline(words, word, '\0');  // Skips the program.
    while (std::getline(words, word, '\0'))
        command.arguments.push_back(word);
    return command;
}

}  // namespace fadeloom
