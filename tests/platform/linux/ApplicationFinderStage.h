// SPDX-License-Identifier: MIT
// A fixture with processes and desktop entries.
#pragma once

#include "platform/linux/ApplicationFinder.h"
#include "tests/platform/linux/LinuxTree.h"

#include <gtest/gtest.h>

#include <string>

namespace fadeloom {

class ApplicationFinderStage : public ::testing::Test {
protected:
    /// "BUNDLE OWNER", or "none".
    std::string found(ProcessID pid) const
    {
        DesktopEntries entries{tree.environment};
        entries.refresh();
        ProcessTable processes{tree.environment};
        ApplicationFinder finder{processes, entries};
        const auto& application = finder.find(pid);
        return application ? application->bundleID + " " + std::to_string(application->owner) : "none";
    }

    LinuxTree tree;
};

}  // namespace fadeloom
