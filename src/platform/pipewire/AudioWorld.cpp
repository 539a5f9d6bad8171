// SPDX-License-Identifier: MIT
#include "platform/pipewire/AudioWorld.h"

#include "platform/pipewire/Carriers.h"

#include <algorithm>
#include <set>

namespace fadeloom {

namespace {

template <typename Things, typename Key, typename Projection>
auto find(const Things& things, const Key& key, Projection projection) -> const typename Things::value_type*
{
    const auto found = std::ranges::find(things, key, projection);
    return found == things.end() ? nullptr : &*found;
}

std::optional<OutOfReach> outOfReach(
    const GraphNode& stream, const AudioWorldBuilder::StreamQueries& knowledge)
{
    if (!isTappable(stream))
        return OutOfReach::fixed;
    return knowledge.isLeftAlone(stream) ? std::optional(OutOfReach::contested) : std::nullopt;
}

}  // namespace

const AudioWorld::Device* AudioWorld::device(OutputDeviceID id) const
{
    return find(devices, id, &Device::id);
}

const AudioWorld::Device* AudioWorld::deviceWithUID(const std::string& uid) const
{
    return find(devices, uid, &Device::uid);
}

const AudioWorld::Process* AudioWorld::process(AudioProcessID id) const
{
    const auto found = std::ranges::lower_bound(processes, id, {}, &Process::id);
    return found == processes.end() || found->id != id ? nullptr : &*found;
}

const AudioWorld::Process* AudioWorld::processOfClient(GraphSerial client) const
{
    const auto found = std::ranges::find_if(
        processes, [&](const Process& process) { return process.clients.contains(client); });
    return found == processes.end() ? nullptr : &*found;
}

AudioChanges changesBetween(const AudioWorld& before, const AudioWorld& after)
{
    const auto doesSame = [](const AudioWorld::Process& one, const AudioWorld::Process& other) {
        return one.id == other.id && one.isPlaying == other.isPlaying
            && one.isUsingMicrophone == other.isUsingMicrophone && one.ownOutputs == other.ownOutputs
            && one.outOfReach == other.outOfReach;
    };
    return {
        .processes = !std::ranges::equal(before.processes, after.processes, doesSame),
        .outputDevices = before.devices != after.devices,
        .defaultOutput = before.defaultDevice != after.defaultDevice,
    };
}

AudioWorld AudioWorldBuilder::build(const Graph& graph, const StreamQueries& knowledge)
{
    AudioWorld world;
    addDevices(graph, world);
    addProcesses(graph, knowledge, world);
    return world;
}

void AudioWorldBuilder::forget()
{
    devices_.clear();
    processes_.clear();
    keys_.clear();
}

void AudioWorldBuilder::addDevices(const Graph& graph, AudioWorld& world)
{
    std::set<GraphSerial> present;
    const auto defaultName = graph.defaultSinkName();
    for (const auto& [nodeID, node] : graph.nodes) {
        const auto ports = node.isSink() ? graph.inputPorts(nodeID) : std::vector<GraphPort>{};
        if (ports.empty() || ports.size() < node.inputPortCount)
            continue;  // Not a device, or one whose ports are still appearing.

        // A change of channels makes it another device: audio must be mapped to it again.
        auto layout = layoutOf(ports);
        present.insert(node.serial);
        auto& known = devices_[node.serial];
        if (known.id == 0 || known.layout != layout)
            known = {layout, ++lastID_};
        world.devices.push_back({.id = known.id,
            .node = nodeID,
            .serial = node.serial,
            .uid = std::string{node.name()},
            .name = displayNameOf(node),
            .layout = std::move(layout)});
        if (!defaultName.empty() && node.name() == defaultName)
            world.defaultDevice = known.id;
    }
    std::erase_if(devices_, [&](const auto& entry) { return !present.contains(entry.first); });
    std::ranges::sort(world.devices, {}, &AudioWorld::Device::serial);
}

void AudioWorldBuilder::addProcesses(const Graph& graph, const StreamQueries& knowledge, AudioWorld& world)
{
    struct Activity {
        bool hasStream = false;
        bool isPlaying = false;
        bool isUsingMicrophone = false;
        std::set<std::string> ownOutputs;
        std::optional<OutOfReach> outOfReach;
    };
    const Carriers carriers{graph};
    std::map<GraphID, Activity> activities;
    for (const auto& [id, node] : graph.nodes) {
        const auto client = node.clientID();
        if (!node.hasInfo || !client || !(isAppSound(node) || node.isInputStream())
            || carriers.contains(node))
            continue;
        auto& activity = activities[*client];
        activity.hasStream = true;
        activity.isPlaying |= isAppSound(node) && (isPlaying(node) || knowledge.isHeld(node));
        activity.isUsingMicrophone |= isUsingMicrophone(graph, node);
        if (isAppSound(node) && isPlaying(node) && !activity.outOfReach)
            activity.outOfReach = outOfReach(node, knowledge);
        const auto* device =
            isTappable(node) ? ownDevice(graph, node, knowledge.chosenTarget(node)) : nullptr;
        if (device)
            activity.ownOutputs.emplace(device->name());
    }

    // One entry per process, whichever of its clients comes first.
    std::map<ProcessKey, AudioWorld::Process> pictures;
    for (const auto& [id, client] : graph.clients) {
        if (!client.hasInfo)
            continue;
        const auto& key = keyOf(client);
        const auto found = activities.find(id);
        const auto activity = found == activities.end() ? Activity{} : found->second;
        if (!activity.hasStream && !processes_.contains(key))
            continue;
        auto& known = processes_[key];
        if (known.id == 0)
            known = {++lastID_, key.pid > 0 && questions_.watch(key.pid)};
        auto& process = pictures[key];
        process.portalAppID = identityOf(client).portalAppID;
        process.clients.insert(client.serial);
        process.isPlaying |= activity.isPlaying;
        process.isUsingMicrophone |= activity.isUsingMicrophone;
        process.ownOutputs.insert(activity.ownOutputs.begin(), activity.ownOutputs.end());
        if (!process.outOfReach)
            process.outOfReach = activity.outOfReach;
    }

    std::erase_if(processes_,
        [&](const auto& entry) { return !entry.second.isWatched && !pictures.contains(entry.first); });
    for (const auto& [key, known] : processes_) {
        auto& process = pictures[key];
        process.id = known.id;
        process.pid = key.pid;
        world.processes.push_back(std::move(process));
    }
    std::ranges::sort(world.processes, {}, &AudioWorld::Process::id);
    std::erase_if(keys_, [&](const auto& entry) {
        return std::ranges::none_of(
            graph.clients, [&](const auto& client) { return client.second.serial == entry.first; });
    });
}

void AudioWorldBuilder::processEnded(std::int32_t pid)
{
    const auto found = processes_.find({.pid = pid});
    if (found != processes_.end())
        found->second.isWatched = false;
}

const AudioWorldBuilder::ProcessKey& AudioWorldBuilder::keyOf(const GraphClient& client)
{
    const auto found = keys_.find(client.serial);
    if (found != keys_.end())
        return found->second;
    const auto identity = identityOf(client);
    const bool isBelieved = identity.trust == ClientIdentity::Trust::verified
        || (identity.trust == ClientIdentity::Trust::claimed
            && questions_.runs(identity.pid, identity.binary));
    const bool hasPid = isBelieved && identity.pid > 0;
    return keys_[client.serial] =
               hasPid ? ProcessKey{.pid = identity.pid} : ProcessKey{.client = client.serial};
}

}  // namespace fadeloom
