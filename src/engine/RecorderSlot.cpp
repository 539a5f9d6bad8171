// SPDX-License-Identifier: MIT
#include "engine/RecorderSlot.h"

#include <utility>

namespace fadeloom {

void RecorderSlot::set(std::shared_ptr<RecordingLanes> lanes)
{
    lanes_.store(lanes.get(), std::memory_order_seq_cst);
    if (lanes)
        kept_.push_back(std::move(lanes));
}

bool RecorderSlot::letGo()
{
    if (users_.load(std::memory_order_seq_cst) != 0)
        return false;
    std::erase_if(kept_, [this](const auto& lanes) { return lanes.get() != lanes_.load(); });
    return true;
}

void RecorderSlot::write(const void* writer, double sampleRate, const CycleTime& time,
    std::span<const float> samples) noexcept FADELOOM_NONBLOCKING
{
    use([&](RecordingLanes& lanes) { lanes.push(writer, sampleRate, time, samples); });
}

void RecorderSlot::release(const void* writer) noexcept
{
    use([&](RecordingLanes& lanes) { lanes.release(writer); });
}

template <typename Use>
void RecorderSlot::use(const Use& use) noexcept FADELOOM_NONBLOCKING
{
    users_.fetch_add(1, std::memory_order_seq_cst);
    if (auto* const lanes = lanes_.load(std::memory_order_seq_cst))
        use(*lanes);
    users_.fetch_sub(1, std::memory_order_release);
}

}  // namespace fadeloom
