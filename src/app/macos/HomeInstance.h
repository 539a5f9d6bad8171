// SPDX-License-Identifier: MIT
// One instance per user on macOS: a second start opens the first one's panel.
#pragma once

#include "app/RunningAlready.h"
#include "app/ServedControl.h"
#include "platform/macos/FoundationFolders.h"
#include "platform/macos/OneInstance.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {

/// This instance among those of the user.
class HomeInstance {
public:
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
        // Not served: there is no socket for commands on macOS yet.
        std::optional<ServedControl> control = std::nullopt;
    };

    /// Becomes the only instance; otherwise asks the other one, to show its panel if wanted, and returns the
    /// outcome.
    [[nodiscard]] std::optional<EarlyEnd> claim(OpenPanel openPanel)
    {
        const auto start = instance_.claim(openPanel == OpenPanel::yes);
        if (start == OneInstance::Start::first)
            return std::nullopt;
        if (openPanel == OpenPanel::no)
            return runningAlready::wouldCompete();
        if (start == OneInstance::Start::besideHeadless)
            return runningAlready::withoutPanel();
        instance_.askToOpen();
        return runningAlready::panelIsOpen();
    }
    /// Sets how requests are handled from now on.
    void serve(Actions actions) { instance_.serve(std::move(actions.open)); }
    /// From now on other instances wait for the exit.
    void beginEnding() { instance_.beginEnding(); }

private:
    static std::filesystem::path folder()
    {
        const auto support = FoundationFolders().applicationSupport();
        return support.empty() ? support : support / "Fadeloom";
    }

    OneInstance instance_{folder()};
};

}  // namespace fadeloom
