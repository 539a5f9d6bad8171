// SPDX-License-Identifier: MIT
// A small fake Linux in a temporary folder: processes, desktop entries, programs.
#pragma once

#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/LinuxWorkspace.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fadeloom {

/// The properties of a process in the tree.
struct TreeProcess {
    ProcessID pid = 0;
    ProcessID parent = 1;
    std::string executable{};  // A path below the tree, or any text; empty for one that cannot be read.
    std::vector<std::string> arguments{};  // The executable if empty.
    std::string unit{};
    std::string flatpakID{};
    std::string shortName = "name";
    std::uint64_t startTime = 100;
    uid_t user = 1000;
    char state = 'S';
};

class LinuxTree {
public:
    LinuxTree()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "fadeloom-linux-XXXXXX";
        root = mkdtemp(pattern.data());
        environment.processes = root / "proc";
        environment.applicationFolders = {root / "home/applications", root / "usr/applications"};
        environment.programFolders = {root / "bin"};
        environment.user = 1000;
        for (const auto* folder : {"proc", "home/applications", "usr/applications", "bin"})
            std::filesystem::create_directories(root / folder);
    }
    LinuxTree(const LinuxTree&) = delete;
    LinuxTree& operator=(const LinuxTree&) = delete;
    ~LinuxTree() { std::filesystem::remove_all(root); }

    static void write(const std::filesystem::path& file, const std::string& text)
    {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream{file, std::ios::binary} << text;
    }

    /// Installs a program; returns its path.
    std::filesystem::path program(const std::string& name) const
    {
        const auto file = root / "bin" / name;
        write(file, "#!");
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        return file;
    }

    /// Installs a desktop entry; `rest` follows its type.
    std::filesystem::path entry(
        const std::string& id, const std::string& rest, const std::string& where = "usr") const
    {
        const auto file = root / where / "applications" / (id + ".desktop");
        write(file, "[Desktop Entry]\nType=Application\n" + rest);
        return file;
    }

    /// Starts a process, or replaces the one with its pid.
    void start(const TreeProcess& process) const
    {
        const auto folder = environment.processes / std::to_string(process.pid);
        end(process.pid);
        write(folder / "status", "Name:\tx\nUid:\t" + std::to_string(process.user) + "\t0\t0\t0\n");
        write(folder / "stat",
            std::to_string(process.pid) + " (" + process.shortName + ") " + process.state + " "
                + std::to_string(process.parent) + " 1 1 0 -1 4194560 1 0 0 0 1 1 0 0 20 0 1 0 "
                + std::to_string(process.startTime) + " 1000 10\n");
        std::string commandLine;
        for (const auto& argument :
            process.arguments.empty() ? std::vector{process.executable} : process.arguments)
            commandLine += argument + '\0';
        write(folder / "cmdline", commandLine);
        write(folder / "cgroup", "0::/user.slice/app.slice/" + process.unit + "\n");
        if (!process.executable.empty())
            std::filesystem::create_symlink(process.executable, folder / "exe");
        if (!process.flatpakID.empty())
            write(folder / "root/.flatpak-info", "[Application]\nname=" + process.flatpakID + "\n");
    }

    void end(ProcessID pid) const
    {
        std::filesystem::remove_all(environment.processes / std::to_string(pid));
    }

    std::filesystem::path root;
    LinuxEnvironment environment;
};

}  // namespace fadeloom
