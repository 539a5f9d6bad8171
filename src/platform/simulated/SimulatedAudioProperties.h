// SPDX-License-Identifier: MIT
// What the objects of a simulated audio system answer when they are asked for a property.
#pragma once

#include "platform/simulated/SimulatedAudioObjects.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace fadeloom {

using SimulatedBytes = std::vector<std::byte>;
using SimulatedPropertyText = std::optional<std::string>;  // Absent for a property without text.
using SimulatedPropertyValue = std::variant<SimulatedBytes, SimulatedPropertyText>;

/// The value of any property but the stream usage, which belongs to an IO procedure. Errors:
/// `kAudioHardwareBadObjectError` for no object, `kAudioHardwareUnknownPropertyError` for a selector, scope or element
/// that the object does not have.
[[nodiscard]] AudioResult<SimulatedPropertyValue> simulatedProperty(
    const SimulatedAudioObjects& objects, AudioObjectID object, const AudioObjectPropertyAddress& address);

}  // namespace fadeloom
