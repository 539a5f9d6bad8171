// SPDX-License-Identifier: MIT
// Preferences in memory.
#pragma once

#include "platform/UserDefaults.h"

#include <map>

namespace fadeloom {

class SimulatedUserDefaults final : public UserDefaults {
public:
    std::optional<std::vector<std::string>> stringList(const std::string& key) const override
    {
        const auto found = lists_.find(key);
        return found == lists_.end() ? std::nullopt : std::optional(found->second);
    }
    void setStringList(const std::string& key, const std::vector<std::string>& values) override
    {
        lists_[key] = values;
    }
    void remove(const std::string& key) override { lists_.erase(key); }

private:
    std::map<std::string, std::vector<std::string>> lists_;
};

}  // namespace fadeloom
