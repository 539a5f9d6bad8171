// SPDX-License-Identifier: MIT
#include "platform/pipewire/ParkedStream.h"

#include "platform/pipewire/GraphRules.h"

#include <algorithm>

namespace fadeloom {

namespace {

constexpr const char* targetObject = "target.object";
constexpr const char* targetNode = "target.node";
constexpr const char* theDefaultDevice = "-1";

}  // namespace

ParkedStream::ParkedStream(GraphConnection& connection, const GraphNode& stream)
    : connection_(connection)
    , id_(stream.id)
    , serial_(stream.serial)
    , chosen_(chosenTargetIn(connection.graph(), stream.id))
{
}

void ParkedStream::write(const char* key, const std::optional<std::string>& value)
{
    // Removing a metadata value that does not exist is not reported by the server, so no echo would come.
    const bool isThere = !connection_.graph().metadataValue(id_, key).empty();
    if (!value && !isThere)
        return;
    ownWrites_.emplace_back(key, value.value_or(""));
    connection_.setMetadata(id_, key, key == targetNode ? "Spa:Id" : "Spa:String", value);
}

bool ParkedStream::ensureParkedOn(const std::string& parkName)
{
    if (connection_.graph().metadataValue(id_, targetObject) == parkName) {
        rememberUsersNode();
        return true;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now - lastWrite_ < rewriteInterval)
        return false;
    if (lastWrite_ != std::chrono::steady_clock::time_point{})
        moves_.push_back(now);
    while (!moves_.empty() && now - moves_.front() > movesWithin)
        moves_.pop_front();
    if (isContested())
        return true;
    lastWrite_ = now;
    write(targetObject, parkName);
    rememberedNode_.clear();
    rememberUsersNode();
    return true;
}

void ParkedStream::restoreTarget()
{
    if (!chosen_.object.empty()) {
        if (chosen_.node.empty())
            write(targetNode, std::nullopt);
        write(targetObject, chosen_.object);
    } else {
        write(targetObject, std::nullopt);
    }
    if (!chosen_.node.empty()) {
        // Removed first: writing an unchanged value would be no change, and would not be stored.
        write(targetNode, std::nullopt);
        write(targetNode, chosen_.node);
    }
}

void ParkedStream::metadataChanged(const std::string& key, const std::string& value)
{
    if (key != targetObject && key != targetNode)
        return;
    const auto own = std::ranges::find(ownWrites_, std::pair{key, value});
    if (own != ownWrites_.end()) {
        ownWrites_.erase(ownWrites_.begin(), own + 1);
        return;
    }
    if (key == targetNode) {
        if (value == rememberedNode_)
            return;  // Repeated, because the metadata was bound again.
        chosen_.node = value;
        rememberUsersNode();
    } else if (!value.starts_with(parkNamePrefix)) {
        chosen_.object = value;
    }
}

void ParkedStream::sessionManagerForgot()
{
    lastWrite_ = {};
    rememberedNode_.clear();
    ownWrites_.clear();
}

void ParkedStream::rememberUsersNode()
{
    const auto node = usersNode();
    if (!node)
        return;
    const auto value = std::to_string(*node);
    if (value == rememberedNode_)
        return;
    rememberedNode_ = value;
    write(targetNode, theDefaultDevice);
    write(targetNode, value);
}

std::optional<GraphID> ParkedStream::usersNode() const
{
    const auto* node = targetOf(connection_.graph(), GraphNode{}, chosen_);
    return node ? std::optional{node->id} : std::nullopt;
}

}  // namespace fadeloom
