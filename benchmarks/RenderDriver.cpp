// SPDX-License-Identifier: MIT
// Renders a case in one implementation, for tools that count what a program does.
//
//   renderDriver FORM CASE ROUNDS     FORM: plain, or the name of a set of kernels; a round has 16 blocks of 512 frames
#include "benchmarks/RenderCases.h"
#include "engine/kernels/RenderChoice.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <span>
#include <string_view>

namespace fadeloom {
namespace {

constexpr std::size_t blockFrames = 512;
constexpr std::size_t blocksOfARound = 16;

const RenderKernels* kernelsNamed(std::string_view name)
{
    const auto usable = usableKernels();
    const auto found = std::ranges::find(usable, name, &RenderKernels::name);
    return found == usable.end() ? nullptr : *found;
}

int run(std::string_view form, std::string_view caseName, std::string_view rounds)
{
    const auto* which = std::ranges::find(renderCases, caseName, &RenderCase::name);
    const RenderKernels* kernels = kernelsNamed(form);
    std::size_t count = 0;
    std::from_chars(rounds.data(), rounds.data() + rounds.size(), count);
    if (which == renderCases.end() || (!kernels && form != "plain")) {
        std::fputs("renderDriver: no such form or case here\n", stderr);
        return 2;
    }
    RenderRun run(*which, blockFrames, kernels);
    float peak = 0;
    for (std::size_t round = 0; round < count; ++round) {
        run.rewind();
        peak = std::max(peak, run.render(blocksOfARound * blockFrames));
    }
    std::printf("%g\n", static_cast<double>(peak));
    return 0;
}

}  // namespace
}  // namespace fadeloom

int main(int count, char** words)
{
    const std::span arguments(words, static_cast<std::size_t>(count));
    if (arguments.size() != 4) {
        std::fputs("usage: renderDriver FORM CASE ROUNDS\n", stderr);
        return 2;
    }
    return fadeloom::run(arguments[1], arguments[2], arguments[3]);
}
