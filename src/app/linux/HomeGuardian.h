// SPDX-License-Identifier: MIT
// Whoever gives the applications back to their devices while the program stands still on Linux.
#pragma once

#include "platform/linux/DescriptorLimit.h"
#include "platform/linux/Guardian.h"
#include "platform/pipewire/ClientRelease.h"
#include "platform/qt/QuitSignals.h"

#include <cstdint>

namespace fadeloom {

/// To be made before any thread: it splits the process in two. It also gives the program all the open files that the
/// user may have.
class HomeGuardian {
public:
    HomeGuardian() { raiseDescriptorLimit(); }

    /// Our client of the audio server, 0 for none. Thread: any.
    void holdClient(std::uint64_t client) noexcept { guardian_.hold(client); }

private:
    Guardian guardian_{&releaseClient, QuitSignals::requestSignal};
};

}  // namespace fadeloom
