// SPDX-License-Identifier: MIT
// The program's own domain of the user's preferences, where the system looks as well.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// Values inherited from the system's domains are not seen here. Thread: main.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// Absent when there is nothing, or something that is no list of texts.
    [[nodiscard]] virtual std::optional<std::vector<std::string>> stringList(
        const std::string& key) const = 0;
    virtual void setStringList(const std::string& key, const std::vector<std::string>& values) = 0;
    virtual void remove(const std::string& key) = 0;
};

}  // namespace fadeloom
