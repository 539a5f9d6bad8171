// SPDX-License-Identifier: MIT
// The process that releases the applications while the program is stopped, on Linux.
#pragma once

#include "platform/linux/DescriptorLimit.h"
#include "platform/linux/Guardian.h"
#include "platform/pipewire/ClientRelease.h"
#include "platform/qt/QuitSignals.h"

#include <cstdint>

namespace fadeloom {

/// Create it before any thread: it forks the process. It also raises the limit of open files to the hard limit.
class HomeGuardian {
public:
    HomeGuardian() { raiseDescriptorLimit(); }

    /// Our client id on the audio server, 0 for none. Thread: any.
    void holdClient(std::uint64_t client) noexcept { guardian_.hold(client); }

private:
    Guardian guardian_{&releaseClient, QuitSignals::requestSignal};
};

}  // namespace fadeloom
