// SPDX-License-Identifier: MIT
// The process responsible for another one: the application that launched a helper.
#pragma once

#include "platform/Workspace.h"

#include <optional>

namespace fadeloom {

/// The system function is not public; it is looked up once, and may be missing.
class ResponsibleProcess {
public:
    ResponsibleProcess();

    /// nullopt if the system does not know.
    [[nodiscard]] std::optional<ProcessID> of(ProcessID pid) const;

private:
    ProcessID (*const lookUp_)(ProcessID pid);
};

}  // namespace fadeloom
