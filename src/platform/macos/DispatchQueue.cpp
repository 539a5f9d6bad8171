// SPDX-License-Identifier: MIT
#include "platform/macos/DispatchQueue.h"

#include <dispatch/dispatch.h>

#include <atomic>
#include <mutex>
#include <utility>

namespace fadeloom {

/// A counted reference to the system's queue.
class DispatchQueue::Handle {
public:
    explicit Handle(const char* label)
        : queue_(dispatch_queue_create(
              label, dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_UTILITY, 0)))
    {
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { dispatch_release(queue_); }

    [[nodiscard]] dispatch_queue_t get() const { return queue_; }

    std::atomic<bool> isOver = false;

private:
    const dispatch_queue_t queue_;
};

/// Whoever extracts the task runs or drops it; nobody else finds it there.
class DispatchQueue::Item final : public Work {
public:
    Item(std::shared_ptr<Handle> queue, std::function<void()> task)
        : queue_(std::move(queue))
        , task_(std::move(task))
    {
    }

    void cancel() override { take(); }
    void runNow() override
    {
        dispatch_sync(queue_->get(), ^{ run(); });
    }
    void run()
    {
        if (const auto task = take())
            task();
    }
    void runWhenDue()
    {
        if (queue_->isOver)
            take();
        else
            run();
    }

private:
    std::function<void()> take()
    {
        const std::scoped_lock guard(mutex_);
        return std::exchange(task_, nullptr);
    }

    const std::shared_ptr<Handle> queue_;
    std::mutex mutex_;
    std::function<void()> task_;
};

DispatchQueue::DispatchQueue(const char* label)
    : handle_(std::make_shared<Handle>(label))
{
}

DispatchQueue::~DispatchQueue()
{
    dispatch_sync(handle_->get(), ^{ handle_->isOver = true; });
}

std::shared_ptr<BackgroundQueue::Work> DispatchQueue::submit(
    std::chrono::milliseconds delay, std::function<void()> task)
{
    auto item = std::make_shared<Item>(handle_, std::move(task));
    const dispatch_block_t due = ^{ item->runWhenDue(); };
    if (delay.count() <= 0) {
        dispatch_async(handle_->get(), due);  // In the order submitted, which timers do not guarantee.
    } else {
        const auto later = std::chrono::nanoseconds(delay).count();
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, later), handle_->get(), due);
    }
    return item;
}

}  // namespace fadeloom
