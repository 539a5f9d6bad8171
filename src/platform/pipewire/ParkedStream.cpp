// SPDX-License-Identifier: MIT
#include "platform/pipewire/ParkedStream.h"

#include "platform/pipewire/GraphRules.h"

#include <algorithm>

namespace fadeloom {

namespace {

constexpr const char* targetObject = "target.object";
constexpr const char* targetNode = "target.node";
constexpr const char* theDefaultDevice = "-1";

bool isOurs(std::string_view target)
{
    return target.starts_with(parkNamePrefix);
}

}  // namespace

ParkedStream::ParkedStream(GraphConnection& connection, const GraphNode& stream)
    : connection_(connection)
    , id_(stream.id)
    , serial_(stream.serial)
    , usersObject_(connection.graph().metadataValue(stream.id, targetObject))
    , usersTargetNode_(connection.graph().metadataValue(stream.id, targetNode))
{
    // Left behind by a run of ours that was killed; it names nothing any more.
    if (isOurs(usersObject_))
        usersObject_.clear();
}

void ParkedStream::write(const char* key, const std::optional<std::string>& value)
{
    // Metadata knows no "remove what is not there": the server tells nobody, so no echo would come.
    const bool isThere = !connection_.graph().metadataValue(id_, key).empty();
    if (!value && !isThere)
        return;
    ownWrites_.emplace_back(key, value.value_or(""));
    connection_.setMetadata(id_, key, key == targetNode ? "Spa:Id" : "Spa:String", value);
}

bool ParkedStream::keepOn(const std::string& parkName)
{
    if (connection_.graph().metadataValue(id_, targetObject) == parkName)
        return true;
    const auto now = std::chrono::steady_clock::now();
    if (now - lastWrite_ < rewriteInterval)
        return false;
    lastWrite_ = now;
    write(targetObject, parkName);
    rememberedNode_.clear();
    rememberUsersNode();
    return true;
}

void ParkedStream::giveBack()
{
    if (!usersObject_.empty()) {
        if (usersTargetNode_.empty())
            write(targetNode, std::nullopt);
        write(targetObject, usersObject_);
    } else {
        write(targetObject, std::nullopt);
    }
    if (!usersTargetNode_.empty()) {
        // Removed first: writing the value that is there already would be no change, and would not be stored.
        write(targetNode, std::nullopt);
        write(targetNode, usersTargetNode_);
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
    if (isOurs(value))
        return;
    if (key == targetObject) {
        usersObject_ = value;
    } else if (value != theDefaultDevice) {
        usersTargetNode_ = value;
        rememberUsersNode();
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
    const auto& graph = connection_.graph();
    const auto asNumber = [](const std::string& text) { return numberOf({{"number", text}}, "number"); };
    if (!usersObject_.empty() && usersObject_ != theDefaultDevice) {
        const auto serial = asNumber(usersObject_);
        const auto* node =
            serial ? graph.nodeWithSerial(static_cast<GraphSerial>(*serial)) : graph.nodeNamed(usersObject_);
        if (node)
            return node->id;
    }
    const auto id = asNumber(usersTargetNode_);
    if (id && *id >= 0 && graph.node(static_cast<GraphID>(*id)))
        return static_cast<GraphID>(*id);
    return std::nullopt;
}

}  // namespace fadeloom
