// SPDX-License-Identifier: MIT
// The applications of the user's session, as the desktop knows them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

using ProcessID = std::int32_t;

/// How an application takes part in the desktop. `prohibited`: background work that the user never sees.
enum class ActivationPolicy { regular, accessory, prohibited };

/// An application's picture, drawn only by the user interface. The first field that is set counts.
struct AppIcon {
    std::string themeName;  // A name of the desktop's icon theme.
    std::filesystem::path file;

    friend bool operator==(const AppIcon&, const AppIcon&) = default;
};

/// A running application at the moment it was asked for.
struct RunningApplication {
    ProcessID pid = -1;
    std::optional<std::string> bundleID;
    std::optional<std::filesystem::path> bundleLocation;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    std::optional<std::string> localizedName;
    std::optional<AppIcon> icon;  // Where it is known at once; else `Workspace::findIcon` has it.
    std::uint64_t launchMark = 0;  // Tells applications apart that had the same pid, one after the other.

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// Thread: main.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Our own process, which is never tapped, and our own bundle identifier.
    [[nodiscard]] virtual ProcessID ownPid() const = 0;
    [[nodiscard]] virtual std::string ownBundleID() const = 0;

    /// Every running application; costly, so callers ask at most once for a piece of work.
    [[nodiscard]] virtual std::vector<RunningApplication> runningApplications() const = 0;
    /// The application that this very process is; absent for a helper of another one, and for no process.
    [[nodiscard]] virtual std::optional<RunningApplication> runningApplication(ProcessID pid) const = 0;
    /// The picture of an application, where finding it takes long. `found` is called once at most, on the main thread,
    /// later or before this returns; never for one without a picture.
    virtual void findIcon(const RunningApplication& application, std::function<void(const AppIcon&)> found)
    {
        if (application.icon)
            found(*application.icon);
    }
    /// Whether this application has ended since it was asked for.
    [[nodiscard]] virtual bool isTerminated(const RunningApplication& application) const = 0;
    /// The process that answers for this one (who launched a helper); absent when the system cannot tell.
    [[nodiscard]] virtual std::optional<ProcessID> responsiblePid(ProcessID pid) const = 0;
    /// Whether a bundle location is one of an application: an ".app" folder, a desktop entry, an executable.
    [[nodiscard]] virtual bool isApplicationBundle(const std::filesystem::path& location) const = 0;

    /// Shows a file in the file manager, selected. Does its best and tells nothing of it.
    virtual void reveal(const std::filesystem::path& file) = 0;
    /// Opens an address with the application that the user has chosen for it. Does its best and tells nothing of it.
    virtual void open(const std::string& url) = 0;
    /// The name of an installed application, running or not, by its bundle identifier.
    [[nodiscard]] virtual std::optional<std::string> installedName(const std::string& bundleID) const = 0;
    /// Starts this program once more beside the running instance. `reported` is called once on the main thread when the
    /// system has answered, later or before this returns, whether it started or not.
    virtual void openNewInstance(std::function<void()> reported) = 0;
};

}  // namespace fadeloom
