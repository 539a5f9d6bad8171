// SPDX-License-Identifier: MIT
// What a tap's aggregate device is made of, in the words of the audio hardware layer.
#pragma once

#include "platform/macos/CFRef.h"

#include <string>

namespace fadeloom {

/// A private device that joins one tap to one output device, which gives the clock.
struct AggregateDescription {
    std::string name;
    std::string uid;
    std::string outputUID;
    std::string tapUUID;
};

[[nodiscard]] CFRef<CFDictionaryRef> aggregateDictionary(const AggregateDescription& description);

}  // namespace fadeloom
