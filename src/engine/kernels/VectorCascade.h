// SPDX-License-Identifier: MIT
// The equalizer's sections in both channels, as many in parallel as the processor has lanes for.
//
// The result of section s for frame i depends only on the output of section s - 1 for that frame, and on the state of
// section s after frame i - 1. So in step t section s processes frame t - s: then the sections of one step are
// independent. Each performs the operations of the plain implementation, on the same operands, in the same order.
#pragma once

#include "engine/kernels/VectorSection.h"
#include "engine/kernels/VectorSlots.h"

#include <cstddef>
#include <utility>

namespace fadeloom {
namespace {

/// `Form`: provides the section's step.
template <class Form, int halves, int vectors>
class Cascade {
public:
    /// Runs frames through the sections of a pass, in place. Not inlined: here compilers have all registers available.
    [[gnu::noinline]] static void run(
        const SectionPass& pass, const SectionMemories& memories, Pair* frames, std::size_t count)
    {
        if (count <= slots) {
            runOneByOne<Form>(pass, memories, frames, count);
            return;
        }
        Cascade cascade(pass, memories);
        cascade.runIn(frames);
        runSteadily(cascade, frames, count);
        cascade.runDown(frames, count);
    }

private:
    using Slot = Slots<halves>;
    using Vector = typename Slot::Vector;
    template <int... number>
    using Sequence = std::integer_sequence<int, number...>;
    using Numbers = std::make_integer_sequence<int, vectors>;
    static constexpr std::size_t slots = halves * vectors;

    Cascade(const SectionPass& pass, const SectionMemories& memories)
        : pass_(pass)
        , memories_(memories)
    {
    }

    // Advances all sections by one step: `frame` enters the first, the output of the last is returned.
    template <int... number>
    FADELOOM_INLINE Pair step(Pair frame, Sequence<number...>)
    {
        const Vector first = Slot::entered(frame, input_[0]);
        // The last one first: each reads its input before it is replaced.
        (advance<vectors - 1 - number>(first), ...);
        return Slot::last(input_[0]);
    }
    template <int number>
    FADELOOM_INLINE void advance(Vector first)
    {
        const Vector x = number == 0 ? first : input_[number];
        input_[(number + 1) % vectors] = Form::step(section<number>(), z1_[number], z2_[number], x);
    }

    // A vector may alias memory that was written as its elements.
    template <int number>
    FADELOOM_INLINE const SectionVector<Vector>& section() const
    {
        return reinterpret_cast<const SectionVector<Vector>*>(pass_.coefficients)[number];
    }

    // Fills the pipeline. A section that no frame has reached yet has zero state and zero input, so it outputs 0.
    FADELOOM_INLINE void runIn(Pair* frames)
    {
        Pair out{};
        for (int half = 0; half < halves; ++half)
            out = runIn(half, frames + half * vectors, Numbers{});
        frames[0] = out;
    }
    template <int... number>
    FADELOOM_INLINE Pair runIn(int half, const Pair* frames, Sequence<number...> numbers)
    {
        Pair out{};
        ((begin<number>(half), out = step(frames[number], numbers)), ...);
        return out;
    }
    template <int number>
    FADELOOM_INLINE void begin(int half)
    {
        const int slot = half * vectors + number;
        if (slot >= pass_.sections)
            return;
        const auto memory = recalled(memories_, pass_.bands[slot]);
        z1_[number] += Slot::placed(memory.z1, half);
        z2_[number] += Slot::placed(memory.z2, half);
    }

    // The steady state, on a local copy whose address is not taken: the state then stays in registers between frames.
    // Through memory, every frame would wait for it.
    [[gnu::noinline]] static void runSteadily(Cascade& state, Pair* frames, std::size_t count)
    {
        Cascade cascade(state.pass_, state.memories_);
        cascade.take(state, Numbers{});
        for (std::size_t time = slots; time + 1 < count; ++time)
            frames[time - slots + 1] = cascade.step(frames[time], Numbers{});
        state.take(cascade, Numbers{});
    }
    template <int... number>
    FADELOOM_INLINE void take(const Cascade& other, Sequence<number...>)
    {
        ((z1_[number] = other.z1_[number]), ...);
        ((z2_[number] = other.z2_[number]), ...);
        ((input_[number] = other.input_[number]), ...);
    }

    // Drains the pipeline, until the last frame has left the last section. Sections that are done keep running, and
    // their results are discarded.
    FADELOOM_INLINE void runDown(Pair* frames, std::size_t count)
    {
        Pair frame = frames[count - 1];
        for (int half = 0; half < halves; ++half) {
            runDown(half, frame, frames + (count - slots) + half * vectors, Numbers{});
            frame = Pair{};
        }
    }
    template <int... number>
    FADELOOM_INLINE void runDown(int half, Pair frame, Pair* out, Sequence<number...> numbers)
    {
        ((out[number] = step(number == 0 ? frame : Pair{}, numbers), end<number>(half)), ...);
    }
    template <int number>
    FADELOOM_INLINE void end(int half)
    {
        const int slot = half * vectors + number;
        if (slot < pass_.sections)
            keep({Slot::taken(z1_[number], half), Slot::taken(z2_[number], half)}, memories_,
                pass_.bands[slot]);
    }

    const SectionPass& pass_;
    const SectionMemories& memories_;
    Vector z1_[vectors]{};
    Vector z2_[vectors]{};
    Vector input_[vectors]{};  // For the next step. What is in the first one moves on to its second half.
};

}  // namespace
}  // namespace fadeloom
