// SPDX-License-Identifier: MIT
// The machine's log.
#pragma once

#include "platform/SystemLog.h"

struct os_log_s;

namespace fadeloom {

class UnifiedLog final : public SystemLog {
public:
    UnifiedLog();

    void write(Level level, std::string_view message) override;

private:
    os_log_s* const log_;  // The system keeps it for as long as the program runs.
};

}  // namespace fadeloom
