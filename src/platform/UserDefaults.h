// SPDX-License-Identifier: MIT
// The program's domain of the user's preferences, which the system also reads.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// Does not include values inherited from the system's domains. Thread: main.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// nullopt if there is no value, or it is not a list of strings.
    [[nodiscard]] virtual std::optional<std::vector<std::string>> stringList(
        const std::string& key) const = 0;
    virtual void setStringList(const std::string& key, const std::vector<std::string>& values) = 0;
    virtual void remove(const std::string& key) = 0;
};

}  // namespace fadeloom
