// SPDX-License-Identifier: MIT
#include "platform/linux/UtilityQueue.h"

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

namespace fadeloom {

namespace {

using Clock = std::chrono::steady_clock;

}  // namespace

/// The pending items by due time, and the running one. One mutex guards everything, including the items.
class UtilityQueue::Schedule {
public:
    using Key = std::pair<Clock::time_point, std::uint64_t>;

    void add(const std::shared_ptr<Item>& item, std::chrono::milliseconds delay);
    void cancel(Item& item);
    void runNow(Item& item);
    /// The worker thread's main function.
    void work();
    void stop();
    /// Drops pending items; whoever holds one of them may still run it.
    void drop();

private:
    using Lock = std::unique_lock<std::mutex>;

    /// Runs a pending item on this thread. The lock is not held while its task runs.
    void perform(Lock& lock, Item& item);
    [[nodiscard]] bool isDue() const
    {
        return !waiting_.empty() && waiting_.begin()->first.first <= Clock::now();
    }
    [[nodiscard]] bool isFreeFor(std::thread::id thread) const
    {
        return busyThread_ == std::thread::id{} || busyThread_ == thread;
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<Key, std::shared_ptr<Item>> waiting_;
    std::uint64_t lastNumber_ = 0;
    std::thread::id busyThread_;  // The thread that is running an item.
    bool isStopping_ = false;
};

class UtilityQueue::Item final : public Work {
public:
    enum class State { waiting, running, done };

    Item(std::shared_ptr<Schedule> itsSchedule, std::function<void()> itsTask)
        : schedule(std::move(itsSchedule))
        , task(std::move(itsTask))
    {
    }

    void cancel() override { schedule->cancel(*this); }
    void runNow() override { schedule->runNow(*this); }

    const std::shared_ptr<Schedule> schedule;
    // Guarded by the schedule's mutex.
    std::function<void()> task;
    State state = State::waiting;
    Schedule::Key key{};
    std::thread::id runner;
};

void UtilityQueue::Schedule::add(const std::shared_ptr<Item>& item, std::chrono::milliseconds delay)
{
    // A year is as good as forever; more would overflow the clock.
    delay = std::clamp<std::chrono::milliseconds>(
        delay, std::chrono::milliseconds{0}, std::chrono::hours{24 * 365});
    {
        const Lock lock{mutex_};
        item->key = {Clock::now() + delay, ++lastNumber_};
        waiting_.emplace(item->key, item);
    }
    changed_.notify_all();
}

void UtilityQueue::Schedule::cancel(Item& item)
{
    std::shared_ptr<Item> kept;  // Released after the lock, and with it the task.
    std::function<void()> task;
    const Lock lock{mutex_};
    if (item.state != Item::State::waiting)
        return;
    item.state = Item::State::done;
    task = std::move(item.task);
    if (auto node = waiting_.extract(item.key))
        kept = std::move(node.mapped());
}

void UtilityQueue::Schedule::perform(Lock& lock, Item& item)
{
    const auto kept = waiting_.extract(item.key);
    const auto thread = std::this_thread::get_id();
    const auto before = std::exchange(busyThread_, thread);
    item.state = Item::State::running;
    item.runner = thread;
    auto task = std::exchange(item.task, nullptr);
    lock.unlock();
    task();
    task = nullptr;
    lock.lock();
    item.state = Item::State::done;
    busyThread_ = before;
    changed_.notify_all();
}

void UtilityQueue::Schedule::runNow(Item& item)
{
    const auto thread = std::this_thread::get_id();
    Lock lock{mutex_};
    changed_.wait(lock, [&] { return item.state != Item::State::waiting || isFreeFor(thread); });
    if (item.state == Item::State::waiting)
        perform(lock, item);
    // A task that waits for itself would deadlock.
    changed_.wait(lock, [&] { return item.state == Item::State::done || item.runner == thread; });
}

void UtilityQueue::Schedule::work()
{
    Lock lock{mutex_};
    while (true) {
        if (busyThread_ == std::thread::id{} && isDue()) {
            auto item = waiting_.begin()->second;
            perform(lock, *item);
            lock.unlock();
            item.reset();
            lock.lock();
        } else if (isStopping_ && busyThread_ == std::thread::id{})
            return;
        else if (waiting_.empty() || busyThread_ != std::thread::id{})
            changed_.wait(lock);
        else
            changed_.wait_until(lock, Clock::time_point{waiting_.begin()->first.first});
    }
}

void UtilityQueue::Schedule::stop()
{
    {
        const Lock lock{mutex_};
        isStopping_ = true;
    }
    changed_.notify_all();
}

void UtilityQueue::Schedule::drop()
{
    // Released after the lock: destroying tasks may have side effects.
    std::map<Key, std::shared_ptr<Item>> dropped;
    const Lock lock{mutex_};
    dropped.swap(waiting_);
}

UtilityQueue::UtilityQueue()
    : schedule_(std::make_shared<Schedule>())
    , thread_([schedule = schedule_] { schedule->work(); })
{
}

UtilityQueue::~UtilityQueue()
{
    schedule_->stop();
    thread_.join();
    schedule_->drop();
}

std::shared_ptr<BackgroundQueue::Work> UtilityQueue::submit(
    std::chrono::milliseconds delay, std::function<void()> task)
{
    auto item = std::make_shared<Item>(schedule_, std::move(task));
    schedule_->add(item, delay);
    return item;
}

}  // namespace fadeloom
