// SPDX-License-Identifier: MIT
// One section of the equalizer on vectors, and where its numbers come from.
#pragma once

#include "engine/kernels/RenderKernels.h"
#include "engine/kernels/VectorTypes.h"

#include <cstddef>

namespace fadeloom {
namespace {

template <class Vector>
struct SectionVector {
    Vector b0;
    Vector b1;
    Vector b2;
    Vector a1;
    Vector a2;
};

/// The section's step, in transposed direct form II.
struct Section {
    template <class Vector>
    FADELOOM_INLINE static Vector step(const SectionVector<Vector>& c, Vector& z1, Vector& z2, Vector x)
    {
        const Vector y = c.b0 * x + z1;
        z1 = z2 + (c.b1 * x - c.a1 * y);
        z2 = c.b2 * x - c.a2 * y;
        return y;
    }
};

/// The state of one section for both channels.
struct SectionMemory {
    Pair z1;
    Pair z2;
};

FADELOOM_INLINE SectionMemory recalled(const SectionMemories& memories, int band)
{
    return {
        .z1 = Pair{memories.leftZ1[band], memories.rightZ1[band]},
        .z2 = Pair{memories.leftZ2[band], memories.rightZ2[band]},
    };
}

FADELOOM_INLINE void keep(const SectionMemory& memory, const SectionMemories& memories, int band)
{
    memories.leftZ1[band] = memory.z1[0];
    memories.rightZ1[band] = memory.z1[1];
    memories.leftZ2[band] = memory.z2[0];
    memories.rightZ2[band] = memory.z2[1];
}

/// The section of a single slot.
FADELOOM_INLINE SectionVector<Pair> sectionAt(int slot, const SectionPass& pass)
{
    const auto coefficient = [&](int number) {
        const int row = slot % pass.vectors * 5 + number;
        const int place = (row * pass.halves + slot / pass.vectors) * 2;
        return Pair{pass.coefficients[place], pass.coefficients[place + 1]};
    };
    return {coefficient(0), coefficient(1), coefficient(2), coefficient(3), coefficient(4)};
}

/// Runs frames through the sections of a pass in place, one section after the other. `Form`: provides their step.
template <class Form>
void runOneByOne(const SectionPass& pass, const SectionMemories& memories, Pair* frames, std::size_t count)
{
    for (int slot = 0; slot < pass.sections; ++slot) {
        const auto section = sectionAt(slot, pass);
        auto memory = recalled(memories, pass.bands[slot]);
        for (std::size_t frame = 0; frame < count; ++frame)
            frames[frame] = Form::step(section, memory.z1, memory.z2, frames[frame]);
        keep(memory, memories, pass.bands[slot]);
    }
}

}  // namespace
}  // namespace fadeloom
