// SPDX-License-Identifier: MIT
// The desktop's file manager.
#pragma once

#include "platform/linux/Variables.h"

#include <filesystem>
#include <memory>

namespace fadeloom {

class SystemLog;

/// Asks over the session bus to have a file shown. Where nobody answers to that, the file's folder is opened instead.
///
/// All of it happens on a thread of its own, which begins with the first file: neither a slow bus nor a slow program
/// holds anybody up. Needs Qt's application object for as long as it lives. One at a time in a process. Thread: main.
class FileManager {
public:
    /// `log` hears when a file can be shown in no way; it must outlive this. `variables` say where programs are; the
    /// bus is the process's.
    explicit FileManager(SystemLog& log, const Variables& variables = processVariables());
    /// Waits for no answer.
    ~FileManager();
    FileManager(const FileManager&) = delete;
    FileManager& operator=(const FileManager&) = delete;

    /// Shows the file, selected. Returns at once.
    void reveal(const std::filesystem::path& file);

private:
    class Worker;

    const std::unique_ptr<Worker> worker_;
};

}  // namespace fadeloom
