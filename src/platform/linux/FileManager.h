// SPDX-License-Identifier: MIT
// Opens files and URLs with the desktop's programs.
#pragma once

#include "platform/linux/Variables.h"

#include <filesystem>
#include <memory>
#include <string>

namespace fadeloom {

class SystemLog;

/// Requests over the session bus that a file be shown. If nobody responds, the file's folder is opened instead, with
/// xdg-open, like URLs.
///
/// Everything runs on a separate thread, started by the first request: neither a slow bus nor a slow program blocks
/// anybody. Needs Qt's application object for its whole lifetime. One instance per process. Thread: main.
class FileManager {
public:
    /// `log` receives a message if something cannot be shown at all; it must outlive this. `variables` determine where
    /// programs are; the bus is the process's.
    explicit FileManager(SystemLog& log, const Variables& variables = processVariables());
    /// Does not wait for replies.
    ~FileManager();
    FileManager(const FileManager&) = delete;
    FileManager& operator=(const FileManager&) = delete;

    /// Selects the file in the file manager. Returns immediately.
    void reveal(const std::filesystem::path& file);
    /// Opens a URL (`https://…`) with the user's default program. Returns immediately.
    void open(const std::string& url);

private:
    class Worker;

    const std::unique_ptr<Worker> worker_;
};

}  // namespace fadeloom
