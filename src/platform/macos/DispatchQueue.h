// SPDX-License-Identifier: MIT
// A background queue of the system's, on whichever thread it likes.
#pragma once

#include "platform/BackgroundQueue.h"

namespace fadeloom {

/// Pieces of work never run at the same time, not even when one of them is run by `runNow`. They must not throw.
class DispatchQueue final : public BackgroundQueue {
public:
    /// `label`: under this name the system's tools show it.
    explicit DispatchQueue(const char* label);
    /// Does what is due by now, then drops the rest.
    ~DispatchQueue() override;
    DispatchQueue(const DispatchQueue&) = delete;
    DispatchQueue& operator=(const DispatchQueue&) = delete;

    std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) override;

private:
    class Handle;
    class Item;

    const std::shared_ptr<Handle> handle_;  // Shared with the pieces of work, which may outlive the queue.
};

}  // namespace fadeloom
