// SPDX-License-Identifier: MIT
// The description of a tap's aggregate device, with the keys of the audio hardware layer.
#pragma once

#include "platform/macos/CFRef.h"

#include <string>

namespace fadeloom {

/// A private device that combines one tap with one output device, which provides the clock.
struct AggregateDescription {
    std::string name;
    std::string uid;
    std::string outputUID;
    std::string tapUUID;
};

[[nodiscard]] CFRef<CFDictionaryRef> aggregateDictionary(const AggregateDescription& description);

}  // namespace fadeloom
