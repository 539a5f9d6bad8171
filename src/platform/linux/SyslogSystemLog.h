// SPDX-License-Identifier: MIT
// The system log through syslog, which the journal also reads.
#pragma once

#include "base/TextWriter.h"
#include "platform/SystemLog.h"

namespace fadeloom {

/// One instance per process: the log has one connection and one name.
class SyslogSystemLog final : public SystemLog {
public:
    /// Whether messages also go to standard error.
    enum class Echo { none, standardError };

    explicit SyslogSystemLog(Echo echo = Echo::none);
    ~SyslogSystemLog() override;
    SyslogSystemLog(const SyslogSystemLog&) = delete;
    SyslogSystemLog& operator=(const SyslogSystemLog&) = delete;

    /// Never blocks, even if nothing reads the system log: messages are then dropped and counted.
    void write(Level level, std::string_view message) override;

private:
    TextWriter writer_;
};

}  // namespace fadeloom
