// SPDX-License-Identifier: MIT
// A panel on a controller on the simulated platform.
#pragma once

#include "tests/control/ControllerStory.h"
#include "tests/ui/DemoParts.h"
#include "ui/PanelModel.h"

#include <QVariant>

#include <optional>

namespace fadeloom {

class PanelStory : public ControllerStory {
protected:
    void open()
    {
        start();
        panel.emplace(*controller, around.parts());
    }
    AppRowModel& row(int position)
    {
        return *panel->rows()->data(panel->rows()->index(position), Qt::UserRole).value<AppRowModel*>();
    }
    static MenuEntry entry(const QVariantList& entries, qsizetype position)
    {
        return entries.at(position).value<MenuEntry>();
    }

    const std::string player = "com.example.player";
    DemoParts around{world};
    std::optional<PanelModel> panel;
};

}  // namespace fadeloom
