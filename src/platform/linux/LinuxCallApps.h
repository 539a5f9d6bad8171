// SPDX-License-Identifier: MIT
// The well-known call apps of Linux desktops, and the web apps that show their sites.
//
// An app goes by another identifier as a Flatpak, as a snap and as a package of the distribution or its maker. A web app
// has one that its browser made up; its desktop entry tells which site it shows.
#pragma once

#include "platform/CallApps.h"
#include "platform/linux/DesktopEntry.h"

#include <functional>
#include <optional>
#include <utility>

namespace fadeloom {

class LinuxCallApps : public CallApps {
public:
    /// The desktop entry of an identifier; absent for none.
    using EntryWithID = std::function<std::optional<DesktopEntry>(const std::string& bundleID)>;

    explicit LinuxCallApps(EntryWithID entryWithID)
        : entryWithID_(std::move(entryWithID))
    {
    }

    [[nodiscard]] const std::vector<CallApp>& wellKnown() const override;
    [[nodiscard]] std::vector<std::string> formerDefaults() const override;
    [[nodiscard]] std::vector<std::string> identifiersOf(const std::string& bundleID) const override;

private:
    EntryWithID entryWithID_;
};

}  // namespace fadeloom
