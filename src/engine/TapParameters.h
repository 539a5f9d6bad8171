// SPDX-License-Identifier: MIT
// What the main thread and one app's renderer tell each other.
//
// Settings go towards the IO thread under a lock that the IO thread only ever tries: when it is busy, that cycle goes
// on with what the last one knew. A level and a flag come back as single words. The block outlives the taps of its
// app, so a rebuilt tap goes on where the last one stopped; it never moves, for the IO thread holds its address.
#pragma once

#include "base/UnfairLock.h"
#include "engine/EqualizerDesign.h"
#include "engine/RecorderSlot.h"

#include <atomic>
#include <cstdint>
#include <span>

namespace fadeloom {

class TapParameters {
public:
    /// What the renderer applies. Gains are linear factors.
    struct Values {
        float volume = 1;
        bool muted = false;
        float duck = 1;  // On top of `volume`, while a call lowers the other apps.
        bool eqEnabled = false;
        float preamp = 1;  // Before the equalizer, and only while it is on.
        std::int64_t eqVersion = 0;  // Grows with each `setEQ`; coefficients are copied only when it has.

        friend bool operator==(const Values&, const Values&) = default;
    };

    TapParameters() = default;
    TapParameters(const TapParameters&) = delete;
    TapParameters& operator=(const TapParameters&) = delete;

    /// Replaces the first sections (ten at most) and leaves the others. Thread: main.
    void setEQ(std::span<const BiquadCoefficients> sections);

    /// The highest output sample since the last call (linear, 1 is full scale), which starts the measure anew.
    /// Thread: main.
    [[nodiscard]] float takePeak();

    /// Guards `values` and `coefficients`. Only the main thread writes them.
    UnfairLock lock;
    Values values;
    EQCoefficients coefficients{};

    /// Takes every cycle's sound as it was captured.
    RecorderSlot recorder;

    // Relaxed order is enough for both: each is a word of its own that promises nothing about any other memory, and
    // an update that is seen late, or lost between a read and a write, costs one frame of a meter.
    std::atomic<float> peak = 0;
    std::atomic<bool> audioSeen = false;  // Set for good with the first sample that is not zero.
    static_assert(std::atomic<float>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);
};

}  // namespace fadeloom
