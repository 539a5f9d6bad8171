// SPDX-License-Identifier: MIT
// A background queue, backed by a dispatch queue.
#pragma once

#include "platform/BackgroundQueue.h"

namespace fadeloom {

/// Tasks never run concurrently, not even with `runNow`. They must not throw.
class DispatchQueue final : public BackgroundQueue {
public:
    /// `label`: shown by the system's tools.
    explicit DispatchQueue(const char* label);
    /// Runs what is due, then drops the rest.
    ~DispatchQueue() override;
    DispatchQueue(const DispatchQueue&) = delete;
    DispatchQueue& operator=(const DispatchQueue&) = delete;

    std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) override;

private:
    class Handle;
    class Item;

    const std::shared_ptr<Handle> handle_;  // Shared with the handles, which may outlive the queue.
};

}  // namespace fadeloom
