// SPDX-License-Identifier: MIT
// The machine's own log: the journal, syslog, the unified log.
#pragma once

#include <string_view>

namespace fadeloom {

class SystemLog {
public:
    enum class Level { notice, error };

    virtual ~SystemLog() = default;

    /// Writes one message, readable by the user. Never fails towards the caller. Thread: any but the IO thread.
    virtual void write(Level level, std::string_view message) = 0;
};

}  // namespace fadeloom
