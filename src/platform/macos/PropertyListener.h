// SPDX-License-Identifier: MIT
// A listener for one property of one audio object.
#pragma once

#include "platform/macos/BlockRef.h"

#include <CoreAudio/CoreAudio.h>

#include <expected>
#include <functional>
#include <memory>

namespace fadeloom {

/// Called on the main queue, until it is destroyed. Thread: main.
class PropertyListener {
public:
    [[nodiscard]] static std::expected<std::unique_ptr<PropertyListener>, OSStatus> add(
        AudioObjectID object, const AudioObjectPropertyAddress& address, std::function<void()> listener);
    PropertyListener(const PropertyListener&) = delete;
    PropertyListener& operator=(const PropertyListener&) = delete;
    ~PropertyListener();

private:
    /// Outlives the listener: a call already queued when it ends still arrives.
    struct Callback {
        std::function<void()> listener;
        bool isOver = false;
    };

    PropertyListener(
        AudioObjectID object, const AudioObjectPropertyAddress& address, std::shared_ptr<Callback> told);

    const AudioObjectID object_;
    const AudioObjectPropertyAddress address_;
    const std::shared_ptr<Callback> callback_;
    const BlockRef<AudioObjectPropertyListenerBlock> block_;
    bool isAdded_ = false;
};

}  // namespace fadeloom
