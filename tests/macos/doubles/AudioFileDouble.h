// SPDX-License-Identifier: MIT
// The tests' view of extended audio files, with fault injection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace doubles {

std::size_t openAudioFiles();
/// The next calls of this function return these statuses, and then succeed again.
void failNextFileCall(const std::string& call, std::vector<std::int32_t> results);

}  // namespace doubles
