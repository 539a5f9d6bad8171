// SPDX-License-Identifier: MIT
// The machine's log through syslog, which the journal reads as well.
#pragma once

#include "base/TextWriter.h"
#include "platform/SystemLog.h"

namespace fadeloom {

/// One at a time in a process: the log has one connection and one name.
class SyslogSystemLog final : public SystemLog {
public:
    /// Whether messages also go to standard error.
    enum class Echo { none, standardError };

    explicit SyslogSystemLog(Echo echo = Echo::none);
    ~SyslogSystemLog() override;
    SyslogSystemLog(const SyslogSystemLog&) = delete;
    SyslogSystemLog& operator=(const SyslogSystemLog&) = delete;

    /// Waits for nobody, also where nothing takes the machine's messages: then they are dropped and counted.
    void write(Level level, std::string_view message) override;

private:
    TextWriter writer_;
};

}  // namespace fadeloom
