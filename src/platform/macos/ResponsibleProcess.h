// SPDX-License-Identifier: MIT
// Who answers for a process: the application that launched a helper.
#pragma once

#include "platform/Workspace.h"

#include <optional>

namespace fadeloom {

/// The system's function for it is not public; it is looked up once, and may be missing.
class ResponsibleProcess {
public:
    ResponsibleProcess();

    /// Absent when the system cannot tell.
    [[nodiscard]] std::optional<ProcessID> of(ProcessID pid) const;

private:
    ProcessID (*const lookUp_)(ProcessID pid);
};

}  // namespace fadeloom
