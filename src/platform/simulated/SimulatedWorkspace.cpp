// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedWorkspace.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

namespace {

std::string identifierFor(const std::string& name)
{
    std::string id = "com.example.";
    for (const char c : name)
        if (c != ' ')
            id += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return id;
}

}  // namespace

std::vector<RunningApplication> SimulatedWorkspace::runningApplications() const
{
    ++listCount_;
    std::vector<RunningApplication> applications;
    for (const auto& [pid, process] : processes_)
        if (process.application)
            applications.push_back(*process.application);
    return applications;
}

std::optional<RunningApplication> SimulatedWorkspace::runningApplication(ProcessID pid) const
{
    const auto found = processes_.find(pid);
    return found == processes_.end() ? std::nullopt : found->second.application;
}

void SimulatedWorkspace::findIcon(
    const RunningApplication& application, std::function<void(const AppIcon&)> found)
{
    ++iconCount_;
    Workspace::findIcon(application, std::move(found));
}

bool SimulatedWorkspace::isTerminated(const RunningApplication& application) const
{
    return runningApplication(application.pid) != application;
}

std::optional<ProcessID> SimulatedWorkspace::responsiblePid(ProcessID pid) const
{
    const auto found = processes_.find(pid);
    if (found == processes_.end())
        return std::nullopt;
    return found->second.responsible >= 1 ? found->second.responsible : pid;
}

bool SimulatedWorkspace::isApplicationBundle(const std::filesystem::path& location) const
{
    return location.extension() == ".app";
}

std::optional<std::string> SimulatedWorkspace::installedName(const std::string& bundleID) const
{
    const auto found = installed_.find(bundleID);
    return found == installed_.end() ? std::nullopt : std::optional(found->second);
}

void SimulatedWorkspace::openNewInstance(std::function<void()> reported)
{
    newInstances_ += canStart_ ? 1 : 0;
    askedStarts_.push_back(std::move(reported));
}

void SimulatedWorkspace::reportStarts()
{
    for (const auto& reported : std::exchange(askedStarts_, {}))
        reported();
}

ProcessID SimulatedWorkspace::launchApp(const std::string& name, const SimulatedAppTraits& traits)
{
    RunningApplication application;
    application.bundleID = traits.bundleID.value_or(identifierFor(name));
    application.bundleLocation = traits.bundleLocation.value_or("/Applications/" + name + ".app");
    application.activationPolicy = traits.policy;
    if (traits.hasName)
        application.localizedName = name;
    application.icon = traits.icon;
    return add(traits.pid, {application, traits.responsible});
}

ProcessID SimulatedWorkspace::launchHelper(ProcessID responsible)
{
    return add(-1, {std::nullopt, responsible});
}

ProcessID SimulatedWorkspace::add(ProcessID wantedPid, Process process)
{
    const ProcessID pid = wantedPid >= 1 ? wantedPid : ++lastPid_;
    lastPid_ = std::max(lastPid_, pid);
    if (process.application) {
        process.application->pid = pid;
        process.application->launchMark = ++launchCount_;
    }
    processes_.insert_or_assign(pid, std::move(process));
    return pid;
}

std::vector<ProcessID> SimulatedWorkspace::quit(ProcessID pid)
{
    std::vector<ProcessID> ended{pid};
    processes_.erase(pid);
    for (std::size_t i = 0; i < ended.size(); ++i)
        std::erase_if(processes_, [&](const auto& entry) {
            if (entry.second.responsible != ended[i])
                return false;
            ended.push_back(entry.first);
            return true;
        });
    return ended;
}

}  // namespace fadeloom
