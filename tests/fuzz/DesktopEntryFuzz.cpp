// SPDX-License-Identifier: MIT
// Arbitrary bytes as a desktop entry, and as the path of a program in one.
#include "platform/linux/DesktopEntry.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace fadeloom;

namespace {

void checkEntry(std::string_view bytes)
{
    const auto entry = parseDesktopEntry(bytes, {"pl_PL", "pl"});
    if (!entry)
        return;
    require(bytes.find("[Desktop Entry]") != std::string_view::npos, "an entry has its group");
    require(
        std::ranges::none_of(entry->site, [](char c) { return c == '/' || c == ' '; }), "a site is a host");
    const bool areBounded = std::ranges::all_of(
        entry->command, [&](const auto& argument) { return argument.size() <= bytes.size(); });
    require(areBounded, "no argument is longer than its file");
}

void checkProgram(std::string program)
{
    std::erase_if(program, [](char c) { return c == '\0' || c == '\n' || c == '\r'; });
    if (program.empty())
        return;
    const auto text = "[Desktop Entry]\nType=Application\nName=Any\nExec=" + execValue("/" + program) + "\n";
    const auto entry = parseDesktopEntry(text, {});
    require(entry.has_value(), "an entry that was written is read");
    require(entry->command.size() == 1 && entry->command.front() == "/" + program,
        "a path of any bytes round-trips");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    checkEntry(bytes);
    checkEntry("[Desktop Entry]\nType=Application\nExec=" + std::string(bytes));
    checkProgram(std::string(bytes));
    return 0;
}
