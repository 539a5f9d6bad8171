// SPDX-License-Identifier: MIT
// What calls on these audio files answer: the codes of AudioFiles.h, and the system's error numbers.
#pragma once

#include "platform/AudioFiles.h"

#include <string>

namespace fadeloom {

/// A status in words, without a full stop. Thread: any.
[[nodiscard]] std::string fileStatusText(AudioStatus status);

}  // namespace fadeloom
