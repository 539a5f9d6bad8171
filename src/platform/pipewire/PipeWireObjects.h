// SPDX-License-Identifier: MIT
// The objects that the program makes: aggregate devices and their IO procedures.
#pragma once

#include "platform/pipewire/PipeWireHardware.h"
#include "platform/pipewire/TapRouter.h"

#include <memory>
#include <vector>

namespace fadeloom {

struct PipeWireHardware::Proc {
    AudioIOProc& proc;
    TapPath* path = nullptr;  // While it is started.
};

struct PipeWireHardware::Aggregate {
    AggregateDescription description;
    AudioObjectID inputStream = 0;
    AudioObjectID outputStream = 0;
    std::vector<std::unique_ptr<Proc>> procs;
};

}  // namespace fadeloom
