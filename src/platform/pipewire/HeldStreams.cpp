// SPDX-License-Identifier: MIT
#include "platform/pipewire/HeldStreams.h"

#include <vector>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// A tap is created within a tenth of that. Without one, the application is audible late rather than never.
constexpr auto holdFor = 1000ms;

}  // namespace

HeldStreams::HeldStreams(GraphConnection& connection)
    : connection_(connection)
{
}

void HeldStreams::hold(const GraphNode& stream, const std::string& parkName)
{
    connection_.setMetadata(stream.id, "target.object", "Spa:String", parkName);
    held_[stream.id] = {.serial = stream.serial, .since = std::chrono::steady_clock::now()};
}

void HeldStreams::handOver(GraphID stream)
{
    held_.erase(stream);
}

void HeldStreams::release(GraphID stream)
{
    if (held_.erase(stream) > 0)
        connection_.setMetadata(stream, "target.object", "Spa:String", std::nullopt);
}

void HeldStreams::update()
{
    std::erase_if(held_,
        [&](const auto& entry) { return !connection_.graph().node(entry.first, entry.second.serial); });
    std::vector<GraphID> overdue;
    for (const auto& [id, held] : held_) {
        if (std::chrono::steady_clock::now() - held.since >= holdFor)
            overdue.push_back(id);
        else
            connection_.callBackIn(holdFor);
    }
    for (const auto id : overdue)
        release(id);
}

bool HeldStreams::has(const GraphNode& stream) const
{
    const auto found = held_.find(stream.id);
    return found != held_.end() && found->second.serial == stream.serial;
}

}  // namespace fadeloom
