// SPDX-License-Identifier: MIT
// Arbitrary bytes in the files that describe a process: what it calls itself, its arguments, its control group, and the
// .flatpak-info of its sandbox. The input is cut at each byte 1 into one file after the other.
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/ProcessTable.h"
#include "tests/fuzz/Require.h"
#include "tests/support/TemporaryFolder.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

using namespace fadeloom;

namespace {

constexpr ProcessID pid = 100;

struct Stage {
    Stage()
    {
        environment.processes = folder.path();
        environment.user = getuid();
        std::filesystem::create_directories(process / "root");
        put("status", "Name:\tany\nUid:\t" + std::to_string(getuid()) + "\t0\t0\t0\n");
    }
    void put(const char* file, std::string_view content) const
    {
        std::ofstream(process / file, std::ios::binary) << content;
    }

    TemporaryFolder folder;
    std::filesystem::path process = folder.path() / std::to_string(pid);
    LinuxEnvironment environment;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Stage stage;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    for (const auto* const file : {"stat", "cmdline", "cgroup", "root/.flatpak-info"}) {
        const auto part = rest.substr(0, rest.find('\1'));
        rest.remove_prefix(std::min(rest.size(), part.size() + 1));
        stage.put(file, part);
    }

    ProcessTable table(stage.environment);
    const auto* const info = table.find(pid);
    if (info == nullptr)
        return 0;
    require(info->pid == pid, "a process has the id of its folder");
    require(info->flatpakID.find('\n') == std::string::npos, "a Flatpak's id is one line");
    require(info->unit.find('/') == std::string::npos, "a unit is the last part of a path");
    require(table.find(pid) == info, "a snapshot does not change");
    return 0;
}
