// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxWorkspace.h"

#include "platform/linux/ApplicationFinder.h"
#include "platform/linux/DescriptorLimit.h"
#include "platform/linux/FileManager.h"
#include "platform/linux/ProcessProgram.h"
#include "platform/linux/ProcessTable.h"
#include "platform/linux/SafeText.h"

#include <QFile>
#include <QProcess>
#include <unistd.h>

#include <set>
#include <utility>

namespace fadeloom {

namespace {

/// The icon of a desktop entry: a file by its path, or a theme name, which some entries write with an extension.
std::optional<AppIcon> iconOf(const DesktopEntry& entry)
{
    if (entry.icon.empty())
        return std::nullopt;
    const std::filesystem::path icon = entry.icon;
    if (icon.is_absolute())
        return AppIcon{{}, icon};
    const auto suffix = icon.extension();
    const bool isFileName = suffix == ".png" || suffix == ".svg" || suffix == ".xpm";
    return AppIcon{safeText((isFileName ? icon.stem() : icon).native()), {}};
}

}  // namespace

LinuxWorkspace::LinuxWorkspace(
    LinuxEnvironment environment, FileManager& fileManager, std::string ownBundleID, StartCommand ownProgram)
    : environment_(std::move(environment))
    , fileManager_(fileManager)
    , ownBundleID_(std::move(ownBundleID))
    , ownProgram_(std::move(ownProgram))
{
}

ProcessID LinuxWorkspace::ownPid() const
{
    return getpid();
}

RunningApplication LinuxWorkspace::describe(
    ApplicationFinder& finder, ProcessTable& processes, ProcessID pid) const
{
    const FoundApplication& found = *finder.find(pid);
    const ProcessInfo& process = *processes.find(pid);
    RunningApplication application;
    application.pid = pid;
    application.launchMark = process.startTime;
    application.bundleID = found.bundleID;
    if (found.entry != nullptr) {
        application.bundleLocation = found.entry->file;
        application.activationPolicy =
            found.entry->noDisplay ? ActivationPolicy::prohibited : ActivationPolicy::regular;
        application.localizedName = safeText(found.entry->name.value_or(found.bundleID));
        application.icon = iconOf(*found.entry);
        return application;
    }
    const auto program = programOf(process).path;
    // An executable in a sandbox, or one that was replaced on disk, is still accessible through its process.
    application.bundleLocation =
        isProgram(program) ? program : environment_.processes / std::to_string(pid) / "exe";
    application.localizedName = found.bundleID;
    return application;
}

std::vector<RunningApplication> LinuxWorkspace::runningApplications() const
{
    entries_.refresh();
    ProcessTable processes{environment_};
    ApplicationFinder finder{processes, entries_};
    std::vector<RunningApplication> applications;
    std::set<std::string> known;
    for (const ProcessID pid : processes.pids()) {
        const auto& found = finder.find(pid);
        if (found && found->owner == pid && known.insert(found->bundleID).second)
            applications.push_back(describe(finder, processes, pid));
    }
    return applications;
}

std::optional<RunningApplication> LinuxWorkspace::runningApplication(ProcessID pid) const
{
    entries_.refresh();
    ProcessTable processes{environment_};
    ApplicationFinder finder{processes, entries_};
    const auto& found = finder.find(pid);
    if (!found || found->owner != pid)
        return std::nullopt;
    return describe(finder, processes, pid);
}

bool LinuxWorkspace::isTerminated(const RunningApplication& application) const
{
    ProcessTable processes{environment_};
    const ProcessInfo* const process = processes.find(application.pid);
    return process == nullptr || process->startTime != application.launchMark;
}

std::optional<ProcessID> LinuxWorkspace::responsiblePid(ProcessID pid) const
{
    entries_.refresh();
    ProcessTable processes{environment_};
    ApplicationFinder finder{processes, entries_};
    const auto& found = finder.find(pid);
    return found ? std::optional{found->owner} : std::nullopt;
}

bool LinuxWorkspace::isApplicationBundle(const std::filesystem::path& location) const
{
    std::error_code error;
    if (location.extension() == ".desktop")
        return std::filesystem::is_regular_file(location, error);
    return isProgram(location);
}

void LinuxWorkspace::reveal(const std::filesystem::path& file)
{
    fileManager_.reveal(file);
}

void LinuxWorkspace::open(const std::string& url)
{
    fileManager_.open(url);
}

void LinuxWorkspace::openNewInstance(std::function<void()> reported)
{
    QStringList arguments;
    for (const auto& argument : ownProgram_.arguments)
        arguments += QFile::decodeName(argument.c_str());
    const OriginalDescriptorLimit limit;
    QProcess::startDetached(QFile::decodeName(ownProgram_.program.c_str()), arguments);
    reported();
}

std::string LinuxWorkspace::bundleIdentifier(ProcessID pid, const std::string& portalAppID) const
{
    if (!portalAppID.empty())
        return safeText(portalAppID);
    entries_.refresh();
    ProcessTable processes{environment_};
    ApplicationFinder finder{processes, entries_};
    const auto& found = finder.find(pid);
    return found ? found->bundleID : std::string{};
}

std::optional<DesktopEntry> LinuxWorkspace::desktopEntry(const std::string& bundleID) const
{
    entries_.refresh();
    const auto* const entry = entries_.withID(bundleID);
    return entry ? std::optional(*entry) : std::nullopt;
}

std::optional<std::string> LinuxWorkspace::installedName(const std::string& bundleID) const
{
    const auto entry = desktopEntry(bundleID);
    return entry ? entry->name : std::nullopt;
}

}  // namespace fadeloom
