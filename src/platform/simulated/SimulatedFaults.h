// SPDX-License-Identifier: MIT
// Faults on demand: which calls of a simulated audio system are refused, and with what status.
#pragma once

#include "platform/AudioObject.h"

#include <optional>
#include <vector>

namespace fadeloom {

enum class AudioOperation {
    propertySize,
    readProperty,  // Texts as well.
    writeProperty,
    listen,
    createProcessTap,
    describeProcessTap,
    destroyProcessTap,
    createAggregateDevice,
    destroyAggregateDevice,
    createIOProc,
    destroyIOProc,
    start,
    stop,
};

enum class HowOften { once, always };

class SimulatedFaults {
public:
    /// Which calls are meant: of one operation; of one property and of one object only, where given.
    struct Match {
        AudioOperation operation;
        std::optional<AudioObjectPropertySelector> selector{};
        std::optional<AudioObjectID> object{};

        friend bool operator==(const Match&, const Match&) = default;
    };

    void refuse(const Match& match, HowOften howOften, AudioStatus status);
    /// Ends every refusal of `operation`.
    void allow(AudioOperation operation);
    /// What the call comes to: success, or the status of the first refusal that matches, which is used up if it was
    /// for once.
    [[nodiscard]] AudioStatus check(
        AudioOperation operation, AudioObjectID object, AudioObjectPropertySelector selector = 0);

private:
    struct Refusal {
        Match match;
        HowOften howOften;
        AudioStatus status;
    };

    std::vector<Refusal> refusals_;
};

}  // namespace fadeloom
