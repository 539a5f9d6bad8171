// SPDX-License-Identifier: MIT
#include "commands/Events.h"

namespace fadeloom {
namespace {

std::map<std::string, AppEntry> byIdentifier(std::span<const AppEntry> entries)
{
    std::map<std::string, AppEntry> apps;
    for (const auto& entry : entries)
        apps.emplace(entry.bundleID, entry);
    return apps;
}

std::map<std::string, std::string> namesByUID(std::span<const OutputDevice> devices)
{
    std::map<std::string, std::string> names;
    for (const auto& device : devices)
        names.emplace(device.uid, device.name);
    return names;
}

}  // namespace

Events appEvents(std::span<const AppEntry> before, std::span<const AppEntry> now)
{
    Events events;
    const auto old = byIdentifier(before);
    const auto current = byIdentifier(now);
    for (const auto& [id, entry] : old) {
        if (!current.contains(id))
            events.emplace_back(event::AppDisappeared{id});
    }
    for (const auto& entry : now) {
        const auto known = old.find(entry.bundleID);
        const bool isNew = known == old.end();
        if (isNew)
            events.emplace_back(event::AppAppeared{entry.bundleID, entry.name});
        if (isNew ? entry.isPlaying : entry.isPlaying != known->second.isPlaying)
            events.emplace_back(event::AppPlaying{entry.bundleID, entry.isPlaying});
    }
    return events;
}

Events appOutputEvents(const AppOutputs& before, const AppOutputs& now)
{
    Events events;
    for (const auto& [id, uid] : now) {
        const auto known = before.find(id);
        if (known == before.end() || known->second != uid)
            events.emplace_back(event::AppOutput{id, uid});
    }
    return events;
}

Events appSettingsEvents(const AppSettingsByID& before, const AppSettingsByID& now)
{
    Events events;
    const auto in = [](const AppSettingsByID& apps, const std::string& id) {
        const auto found = apps.find(id);
        return found == apps.end() ? AppAudioSettings() : found->second;
    };
    for (const auto& [id, settings] : now) {
        if (const auto old = in(before, id); old != settings)
            events.emplace_back(event::AppChanged{id, old, settings});
    }
    for (const auto& [id, settings] : before) {
        if (!now.contains(id) && settings != AppAudioSettings())
            events.emplace_back(event::AppChanged{id, settings, {}});
    }
    return events;
}

Events outputEvents(std::span<const OutputDevice> before, std::span<const OutputDevice> now)
{
    Events events;
    const auto old = namesByUID(before);
    const auto current = namesByUID(now);
    for (const auto& [uid, name] : old) {
        if (!current.contains(uid))
            events.emplace_back(event::OutputRemoved{uid, name});
    }
    for (const auto& [uid, name] : current) {
        const auto known = old.find(uid);
        if (known == old.end())
            events.emplace_back(event::OutputAdded{uid, name});
        else if (known->second != name)
            events.emplace_back(event::OutputRenamed{uid, name});
    }
    return events;
}

Events callOfferEvents(const std::set<std::string>& before, const std::set<std::string>& now)
{
    Events events;
    for (const auto& id : now) {
        if (!before.contains(id))
            events.emplace_back(event::CallOffered{id});
    }
    return events;
}

Events recordingEvents(const std::set<std::string>& before, const std::set<std::string>& now)
{
    Events events;
    const auto addDifference = [&](const auto& from, const auto& other, bool isRunning) {
        for (const auto& id : from) {
            if (!other.contains(id))
                events.emplace_back(event::Recording{id, isRunning});
        }
    };
    addDifference(before, now, false);
    addDifference(now, before, true);
    return events;
}

std::optional<std::string> appOf(const Event& event)
{
    return std::visit(
        [](const auto& happened) -> std::optional<std::string> {
            if constexpr (requires { happened.id; })
                return happened.id;
            else
                return std::nullopt;
        },
        event);
}

}  // namespace fadeloom
