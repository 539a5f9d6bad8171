// SPDX-License-Identifier: MIT
// The unified log.
#pragma once

#include "platform/SystemLog.h"

struct os_log_s;

namespace fadeloom {

class UnifiedLog final : public SystemLog {
public:
    UnifiedLog();

    void write(Level level, std::string_view message) override;

private:
    os_log_s* const log_;  // Never released by the system.
};

}  // namespace fadeloom
