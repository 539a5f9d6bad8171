// SPDX-License-Identifier: MIT
#include "engine/kernels/SectionPacking.h"

#include <cstddef>

namespace fadeloom {

namespace {

// A vector of sections takes three of the sixteen registers that most processors have.
constexpr int maximumVectors = 5;

// With so few sections the limit is the latency of each section's recursion: vectors twice as wide would gain nothing.
constexpr int fewSections = 4;

int roundedUp(int number, int parts)
{
    return (number + parts - 1) / parts;
}

void layOut(SectionPass& pass, const EQCoefficients& sections)
{
    for (int slot = 0; slot < pass.halves * pass.vectors; ++slot) {
        const bool isSection = slot < pass.sections;
        const auto c =
            isSection ? sections[static_cast<std::size_t>(pass.bands[slot])] : BiquadCoefficients{};
        int row = slot % pass.vectors * 5;
        for (const double coefficient : {c.b0, c.b1, c.b2, c.a1, c.a2}) {
            const int place = (row++ * pass.halves + slot / pass.vectors) * 2;
            pass.coefficients[place] = coefficient;
            pass.coefficients[place + 1] = coefficient;
        }
    }
}

}  // namespace

PackedSections packed(
    const EQCoefficients& sections, SectionSet chosen, int halves) noexcept FADELOOM_NONBLOCKING
{
    PackedSections result{};
    int waiting = static_cast<int>(chosen.count());
    result.passCount = roundedUp(waiting, maximumVectors * halves);
    std::size_t band = 0;
    for (int number = 0; number < result.passCount; ++number) {
        auto& pass = result.passes[number];
        pass.sections = roundedUp(waiting, result.passCount - number);
        pass.halves = pass.sections <= fewSections ? 1 : halves;
        pass.vectors = roundedUp(pass.sections, pass.halves);
        for (int slot = 0; slot < pass.sections; ++band) {
            if (chosen[band])
                pass.bands[slot++] = static_cast<int>(band);
        }
        layOut(pass, sections);
        waiting -= pass.sections;
    }
    return result;
}

}  // namespace fadeloom
