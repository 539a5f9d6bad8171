// SPDX-License-Identifier: MIT
// Preferences in a file of the program's own.
#pragma once

#include "platform/UserDefaults.h"

#include <filesystem>

namespace fadeloom {

/// The file is read at every question and written at every change, as a whole: what another program reads is the old
/// content or the new one. A file that cannot be understood counts as empty, and the next change takes its place; one
/// that cannot be written stays as it is. Thread: main.
class QtUserDefaults final : public UserDefaults {
public:
    /// `file`: in INI form; it and the folders above it are made when there is something to keep.
    explicit QtUserDefaults(std::filesystem::path file)
        : file_(std::move(file))
    {
    }

    /// A single text in the file is a list of one.
    std::optional<std::vector<std::string>> stringList(const std::string& key) const override;
    void setStringList(const std::string& key, const std::vector<std::string>& values) override;
    void remove(const std::string& key) override;

private:
    const std::filesystem::path file_;
};

}  // namespace fadeloom
