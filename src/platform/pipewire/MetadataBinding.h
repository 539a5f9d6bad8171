// SPDX-License-Identifier: MIT
// A proxy for one metadata object of the graph.
#pragma once

#include "platform/pipewire/Graph.h"

#include <pipewire/core.h>
#include <pipewire/proxy.h>

#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// Receives all existing values first, then every change. Thread: the graph thread or one that holds its lock.
class MetadataBinding {
public:
    /// `key` is null if a subject lost all its values, `value` if one was removed.
    using Changed = std::function<void(GraphID subject, const char* key, const char* value)>;

    MetadataBinding(pw_registry* registry, GraphID id, Changed changed);
    ~MetadataBinding();
    MetadataBinding(const MetadataBinding&) = delete;
    MetadataBinding& operator=(const MetadataBinding&) = delete;

    [[nodiscard]] GraphID id() const { return id_; }
    /// Writes a value, or removes it if `value` is nullopt.
    void set(
        GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value);

private:
    GraphID id_;
    Changed changed_;
    pw_proxy* proxy_ = nullptr;
    spa_hook listener_{};
};

}  // namespace fadeloom
