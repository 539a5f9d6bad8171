// SPDX-License-Identifier: MIT
// Environment variables for a test.
#pragma once

#include "platform/linux/Variables.h"

#include <map>
#include <utility>

namespace fadeloom {

inline Variables variables(std::map<std::string, std::string> values)
{
    return [values = std::move(values)](const char* name) -> std::optional<std::string> {
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional{found->second};
    };
}

}  // namespace fadeloom
