// SPDX-License-Identifier: MIT
// The system log: the journal, syslog, the unified log.
#pragma once

#include <string_view>

namespace fadeloom {

class SystemLog {
public:
    enum class Level { notice, error };

    virtual ~SystemLog() = default;

    /// Writes one message, readable by the user. Never fails as far as the caller is concerned. Thread: any but the IO
    /// thread.
    virtual void write(Level level, std::string_view message) = 0;
};

}  // namespace fadeloom
