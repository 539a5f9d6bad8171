// SPDX-License-Identifier: MIT
#include "commands/EventLines.h"

#include "commands/PrintableText.h"

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

std::string appLine(const char* event, const std::string& bundleID)
{
    return std::string("app ") + event + " " + asWord(bundleID);
}

std::string deviceLine(const char* event, const std::string& uid, const std::string& name)
{
    return std::string("device ") + event + " " + asWord(uid) + " " + asWord(name);
}

std::string textOrNone(const std::optional<std::string>& text)
{
    return text ? asWord(*text) : "none";
}

}  // namespace

std::vector<std::string> appLines(std::span<const AppEntry> before, std::span<const AppEntry> now)
{
    std::vector<std::string> lines;
    const auto old = byIdentifier(before);
    const auto current = byIdentifier(now);
    for (const auto& [id, entry] : old) {
        if (!current.contains(id))
            lines.push_back(appLine("disappeared", id));
    }
    for (const auto& entry : now) {
        const auto known = old.find(entry.bundleID);
        const bool isNew = known == old.end();
        if (isNew)
            lines.push_back(appLine("appeared", entry.bundleID) + " " + asWord(entry.name));
        if (isNew ? entry.isPlaying : entry.isPlaying != known->second.isPlaying)
            lines.push_back(appLine(entry.isPlaying ? "playing" : "silent", entry.bundleID));
    }
    return lines;
}

std::vector<std::string> outputLines(const AppOutputs& before, const AppOutputs& now)
{
    std::vector<std::string> lines;
    for (const auto& [id, uid] : now) {
        const auto known = before.find(id);
        if (known == before.end() || known->second != uid)
            lines.push_back(appLine("output", id) + " " + textOrNone(uid));
    }
    return lines;
}

std::vector<std::string> deviceLines(std::span<const OutputDevice> before, std::span<const OutputDevice> now)
{
    std::vector<std::string> lines;
    const auto old = namesByUID(before);
    const auto current = namesByUID(now);
    for (const auto& [uid, name] : old) {
        if (!current.contains(uid))
            lines.push_back(deviceLine("removed", uid, name));
    }
    for (const auto& [uid, name] : current) {
        const auto known = old.find(uid);
        if (known == old.end())
            lines.push_back(deviceLine("added", uid, name));
        else if (known->second != name)
            lines.push_back(deviceLine("renamed", uid, name));
    }
    return lines;
}

std::string defaultLine(const std::optional<std::string>& uid)
{
    return "default " + textOrNone(uid);
}

std::string callLine(const std::optional<std::string>& bundleID)
{
    return "call " + textOrNone(bundleID);
}

std::vector<std::string> callOfferLines(const std::set<std::string>& before, const std::set<std::string>& now)
{
    std::vector<std::string> lines;
    for (const auto& id : now) {
        if (!before.contains(id))
            lines.push_back("call-app offered " + asWord(id));
    }
    return lines;
}

std::vector<std::string> recordingLines(const std::set<std::string>& before, const std::set<std::string>& now)
{
    std::vector<std::string> lines;
    const auto addDifference = [&](const char* event, const auto& from, const auto& other) {
        for (const auto& id : from) {
            if (!other.contains(id))
                lines.push_back(std::string("recording ") + event + " " + asWord(id));
        }
    };
    addDifference("stopped", before, now);
    addDifference("started", now, before);
    return lines;
}

std::string savedRecordingLine(const std::filesystem::path& location)
{
    return "recording saved " + asWord(location.string());
}

std::string permissionLine(AudioPermission::State state)
{
    return std::string("permission ").append(AudioPermission::name(state));
}

std::string messageLine(const std::string& message)
{
    return "message " + asWord(message);
}

}  // namespace fadeloom
