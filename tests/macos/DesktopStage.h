// SPDX-License-Identifier: MIT
// The fixture of tests that need a desktop. For Objective-C++ only.
#pragma once

#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Dispatch.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

class DesktopStage : public ::testing::Test {
protected:
    ~DesktopStage() override { doubles::endDesktop(); }

    /// The journal since the last query.
    static std::vector<std::string> done() { return std::exchange(doubles::journal(), {}); }
    static NSApplication* application() { return NSApp; }

    doubles::Desktop& desktop = doubles::beginDesktop();
};

}  // namespace fadeloom
