// SPDX-License-Identifier: MIT
#include "control/AppEntry.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace fadeloom {

namespace {

// The sort key of a row: each name is converted to lower case once, not in every comparison.
struct Key {
    bool isSilent;
    std::string name;
    std::size_t position;  // Makes the sort stable.
};

}  // namespace

std::vector<AppEntry> inDisplayOrder(std::vector<AppEntry> entries, const Text& text)
{
    std::vector<Key> keys;
    keys.reserve(entries.size());
    for (const auto& entry : entries)
        keys.push_back({!entry.isPlaying, text.lowercased(entry.name), keys.size()});
    std::ranges::sort(keys, [](const Key& left, const Key& right) {
        return std::tie(left.isSilent, left.name, left.position)
            < std::tie(right.isSilent, right.name, right.position);
    });

    std::vector<AppEntry> sorted;
    sorted.reserve(entries.size());
    for (const auto& key : keys)
        sorted.push_back(std::move(entries[key.position]));
    return sorted;
}

std::string describe(std::span<const AppEntry> entries)
{
    std::string description;
    for (const auto& entry : entries) {
        if (!description.empty())
            description += ", ";
        description += entry.bundleID;
        if (entry.isPlaying)
            description += "▶";
    }
    return description;
}

}  // namespace fadeloom
