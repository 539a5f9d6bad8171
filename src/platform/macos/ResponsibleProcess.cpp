// SPDX-License-Identifier: MIT
#include "platform/macos/ResponsibleProcess.h"

#include <dlfcn.h>

namespace fadeloom {

ResponsibleProcess::ResponsibleProcess()
    : lookUp_(reinterpret_cast<ProcessID (*)(ProcessID)>(
          dlsym(RTLD_DEFAULT, "responsibility_get_pid_responsible_for_pid")))
{
}

std::optional<ProcessID> ResponsibleProcess::of(ProcessID pid) const
{
    const ProcessID responsible = lookUp_ == nullptr ? -1 : lookUp_(pid);
    return responsible < 0 ? std::nullopt : std::optional(responsible);
}

}  // namespace fadeloom
