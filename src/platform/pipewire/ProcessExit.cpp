// SPDX-License-Identifier: MIT
#include "platform/pipewire/ProcessExit.h"

#include <pipewire/loop.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace fadeloom {

ProcessExit::ProcessExit(pw_loop* loop, std::int32_t pid, std::function<void()> ended)
    : loop_(loop)
    , ended_(std::move(ended))
{
    // A pidfd becomes readable when the process ends, and is immune to reuse of the pid.
    const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
    if (descriptor < 0)
        return;
    constexpr bool closesDescriptor = true;
    source_ = pw_loop_add_io(
        loop, descriptor, SPA_IO_IN, closesDescriptor,
        [](void* self, int, std::uint32_t) {
            auto& me = *static_cast<ProcessExit*>(self);
            pw_loop_update_io(me.loop_, me.source_, 0);  // It stays readable forever.
            if (const auto told = std::exchange(me.ended_, nullptr))
                told();
        },
        this);
}

ProcessExit::~ProcessExit()
{
    if (source_)
        pw_loop_destroy_source(loop_, source_);
}

}  // namespace fadeloom
