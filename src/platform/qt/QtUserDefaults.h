// SPDX-License-Identifier: MIT
// Preferences in the program's own file.
#pragma once

#include "platform/UserDefaults.h"

#include <filesystem>

namespace fadeloom {

/// The file is read by every query and written by every change, atomically: a concurrent reader sees the old content or
/// the new. An invalid file counts as empty, and the next change replaces it; one that cannot be written is unchanged.
/// Thread: main.
class QtUserDefaults final : public UserDefaults {
public:
    /// `file`: in INI format; it and its parent folders are created when the first value is stored.
    explicit QtUserDefaults(std::filesystem::path file)
        : file_(std::move(file))
    {
    }

    /// A single string in the file is a list of one.
    std::optional<std::vector<std::string>> stringList(const std::string& key) const override;
    void setStringList(const std::string& key, const std::vector<std::string>& values) override;
    void remove(const std::string& key) override;

private:
    const std::filesystem::path file_;
};

}  // namespace fadeloom
