// SPDX-License-Identifier: MIT
#include "engine/RecorderSlot.h"

namespace fadeloom {

void RecorderSlot::write(
    const void* writer, std::uint32_t frameCount, const float* samples) noexcept FADELOOM_NONBLOCKING
{
    const void* present = nullptr;
    if (!writer_.compare_exchange_strong(present, writer, std::memory_order_relaxed) && present != writer)
        return;
    writers_.fetch_add(1, std::memory_order_seq_cst);
    // How it went is asked of the file by its owner.
    if (auto* const file = file_.load(std::memory_order_seq_cst))
        file->write(frameCount, samples);
    writers_.fetch_sub(1, std::memory_order_release);
}

}  // namespace fadeloom
