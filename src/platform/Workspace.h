// SPDX-License-Identifier: MIT
// The applications of the user's session, as known to the desktop.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

using ProcessID = std::int32_t;

/// An application's role on the desktop. `prohibited`: background processes that the user never sees.
enum class ActivationPolicy { regular, accessory, prohibited };

/// An application's icon, loaded only by the user interface. The first field that is set counts.
struct AppIcon {
    std::string themeName;  // In the desktop's icon theme.
    std::filesystem::path file;

    friend bool operator==(const AppIcon&, const AppIcon&) = default;
};

/// A snapshot of a running application.
struct RunningApplication {
    ProcessID pid = -1;
    std::optional<std::string> bundleID;
    std::optional<std::filesystem::path> bundleLocation;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    std::optional<std::string> localizedName;
    std::optional<AppIcon> icon;  // If immediately available; otherwise see `Workspace::findIcon`.
    std::uint64_t launchMark = 0;  // Distinguishes applications that reuse a pid.

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// Thread: main.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Our own process, which is never tapped, and our own bundle identifier.
    [[nodiscard]] virtual ProcessID ownPid() const = 0;
    [[nodiscard]] virtual std::string ownBundleID() const = 0;

    /// All running applications; expensive, so callers query it at most once per operation.
    [[nodiscard]] virtual std::vector<RunningApplication> runningApplications() const = 0;
    /// The application whose main process this is; nullopt for a helper of another one, and for no process.
    [[nodiscard]] virtual std::optional<RunningApplication> runningApplication(ProcessID pid) const = 0;
    /// Finds the icon of an application asynchronously if that takes long. `found` is called at most once, on the main
    /// thread, later or before this returns; never if there is no icon.
    virtual void findIcon(const RunningApplication& application, std::function<void(const AppIcon&)> found)
    {
        if (application.icon)
            found(*application.icon);
    }
    /// Whether this application has exited since the snapshot.
    [[nodiscard]] virtual bool isTerminated(const RunningApplication& application) const = 0;
    /// The process responsible for this one (which launched a helper); nullopt if the system does not know.
    [[nodiscard]] virtual std::optional<ProcessID> responsiblePid(ProcessID pid) const = 0;
    /// Whether a bundle location is that of an application: an ".app" folder, a desktop entry, an executable.
    [[nodiscard]] virtual bool isApplicationBundle(const std::filesystem::path& location) const = 0;

    /// Selects a file in the file manager. Best effort, without result.
    virtual void reveal(const std::filesystem::path& file) = 0;
    /// Opens a URL with the user's default application. Best effort, without result.
    virtual void open(const std::string& url) = 0;
    /// The name of an installed application, running or not, by its bundle identifier.
    [[nodiscard]] virtual std::optional<std::string> installedName(const std::string& bundleID) const = 0;
    /// Starts another instance of this program. `reported` is called once on the main thread when the system has
    /// replied, later or before this returns, whether it started or not.
    virtual void openNewInstance(std::function<void()> reported) = 0;
};

}  // namespace fadeloom
