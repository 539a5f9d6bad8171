// SPDX-License-Identifier: MIT
// A panel on a controller with fixed contents.
#pragma once

#include "control/AudioController.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/DemoParts.h"
#include "ui/DemoData.h"
#include "ui/PanelModel.h"

#include <utility>

namespace fadeloom {

struct DemoPanel {
    explicit DemoPanel(DemoContents contents = demoContents(Theme::dark))
        : controller(world.platform(), engineLog, std::move(contents))
    {
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    AudioController controller;
    DemoParts around{world};
    PanelModel panel{controller, around.parts()};
};

}  // namespace fadeloom
