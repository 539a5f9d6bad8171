// SPDX-License-Identifier: MIT
// The program's own domain of the user defaults.
#pragma once

#include "platform/UserDefaults.h"

namespace fadeloom {

class StandardUserDefaults final : public UserDefaults {
public:
    std::optional<std::vector<std::string>> stringList(const std::string& key) const override;
    void setStringList(const std::string& key, const std::vector<std::string>& values) override;
    void remove(const std::string& key) override;
};

}  // namespace fadeloom
