// SPDX-License-Identifier: MIT
// Why settings cannot be read or written.
#pragma once

#include <string>

namespace fadeloom {

struct SettingsError {
    std::string description;  // In English; ends with the system's own words where it has any.

    friend bool operator==(const SettingsError&, const SettingsError&) = default;
};

}  // namespace fadeloom
