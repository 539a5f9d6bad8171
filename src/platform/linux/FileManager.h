// SPDX-License-Identifier: MIT
// The desktop's programs for files and addresses.
#pragma once

#include "platform/linux/Variables.h"

#include <filesystem>
#include <memory>
#include <string>

namespace fadeloom {

class SystemLog;

/// Asks over the session bus to have a file shown. Where nobody answers to that, the file's folder is opened instead, by
/// xdg-open, as addresses are.
///
/// All of it happens on a thread of its own, which begins with the first request: neither a slow bus nor a slow program
/// holds anybody up. Needs Qt's application object for as long as it lives. One at a time in a process. Thread: main.
class FileManager {
public:
    /// `log` hears when something can be shown in no way; it must outlive this. `variables` say where programs are; the
    /// bus is the process's.
    explicit FileManager(SystemLog& log, const Variables& variables = processVariables());
    /// Waits for no answer.
    ~FileManager();
    FileManager(const FileManager&) = delete;
    FileManager& operator=(const FileManager&) = delete;

    /// Shows the file, selected. Returns at once.
    void reveal(const std::filesystem::path& file);
    /// Opens an address (`https://…`) with the program that the user has chosen for it. Returns at once.
    void open(const std::string& url);

private:
    class Worker;

    const std::unique_ptr<Worker> worker_;
};

}  // namespace fadeloom
