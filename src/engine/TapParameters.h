// SPDX-License-Identifier: MIT
// The state shared by the main thread and one app's renderer.
//
// Settings go to the IO thread under a lock that the IO thread only tries: if it is contended, the cycle uses the
// previous snapshot. A level and a flag are returned as single words. The block outlives the taps of its app, so that a
// rebuilt tap resumes where the last one stopped; its address is stable, because the IO thread holds it.
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
    /// The values that the renderer applies. Gains are linear factors.
    struct Values {
        float volume = 1;
        bool muted = false;
        float duck = 1;  // Multiplied with `volume`, while a call ducks the other apps.
        bool eqEnabled = false;
        float preamp = 1;  // Before the equalizer, and only while it is on.
        // Incremented by each `setEQ`; coefficients are copied only if it has changed.
        std::int64_t eqVersion = 0;

        friend bool operator==(const Values&, const Values&) = default;
    };

    TapParameters() = default;
    TapParameters(const TapParameters&) = delete;
    TapParameters& operator=(const TapParameters&) = delete;

    /// Replaces the first sections (ten at most) and keeps the others. Thread: main.
    void setEQ(std::span<const BiquadCoefficients> sections);

    /// The highest output sample since the last call (linear, 1 is full scale), and resets it. Thread: main.
    [[nodiscard]] float takePeak();

    /// Guards `values` and `coefficients`. Only the main thread writes them.
    UnfairLock lock;
    Values values;
    EQCoefficients coefficients{};

    /// Receives every cycle's audio as it was captured.
    RecorderSlot recorder;

    // Relaxed order is sufficient for both: each is an independent word that guards no other memory, and an update that
    // is seen late, or lost between a read and a write, costs one frame of a meter.
    std::atomic<float> peak = 0;
    std::atomic<bool> audioSeen = false;  // Permanently set by the first non-zero sample.
    static_assert(std::atomic<float>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);
};

}  // namespace fadeloom
