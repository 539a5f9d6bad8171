// SPDX-License-Identifier: MIT
// What an aggregate device is made of, in the words of the audio hardware layer.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/macos/CFRef.h"

namespace fadeloom {

[[nodiscard]] CFRef<CFDictionaryRef> aggregateDictionary(const AggregateDescription& description);

}  // namespace fadeloom
