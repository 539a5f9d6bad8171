// SPDX-License-Identifier: MIT
#include "platform/qt/QtMainLoop.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimerEvent>

#include <algorithm>
#include <map>
#include <thread>
#include <utility>

namespace fadeloom {

/// Receives all events on the main thread. Timers are identified by number rather than objects, so a task that ends its
/// own subscription destroys nothing that is running.
class QtMainLoop::Hub final : public QObject, public std::enable_shared_from_this<Hub> {
public:
    enum class Repeats { once, always };

    /// Of a timer; Qt may reuse its number once it has ended, its ticket is unique.
    struct Handle {
        int timer = 0;
        std::uint64_t ticket = 0;
    };

    Handle startTask(std::chrono::milliseconds delay, Repeats repeats, Task task)
    {
        const Handle handle{startTimer(delay, Qt::PreciseTimer), ++lastTicket_};
        tasks_[handle.timer] = {repeats, std::make_shared<const Task>(std::move(task)), handle.ticket};
        return handle;
    }

    void endTask(const Handle& handle)
    {
        const auto found = tasks_.find(handle.timer);
        if (found == tasks_.end() || found->second.ticket != handle.ticket)
            return;
        killTimer(handle.timer);
        // Destroying its captures may call back into this object.
        const auto released = std::move(found->second.task);
        tasks_.erase(found);
    }

    Subscription subscribe(std::chrono::milliseconds delay, Repeats repeats, Task task)
    {
        const Handle handle = startTask(delay, repeats, std::move(task));
        return Subscription{[weakly = weak_from_this(), handle] {
            if (const auto hub = weakly.lock())
                hub->endTask(handle);
        }};
    }

    [[nodiscard]] bool isOurThread() const { return std::this_thread::get_id() == thread_; }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        const auto found = tasks_.find(event->timerId());
        if (found == tasks_.end())
            return;
        const auto task = found->second.task;  // Keeps it alive if it ends itself.
        if (found->second.repeats == Repeats::once)
            endTask({found->first, found->second.ticket});
        (*task)();
    }

private:
    struct Entry {
        Repeats repeats = Repeats::once;
        std::shared_ptr<const Task> task;
        std::uint64_t ticket = 0;
    };

    const std::thread::id thread_ = std::this_thread::get_id();
    std::uint64_t lastTicket_ = 0;
    std::map<int, Entry> tasks_;
};

QtMainLoop::QtMainLoop()
    : hub_(std::make_shared<Hub>())
{
}

QtMainLoop::~QtMainLoop() = default;

void QtMainLoop::post(Task task)
{
    QMetaObject::invokeMethod(hub_.get(), std::move(task), Qt::QueuedConnection);
}

Subscription QtMainLoop::after(std::chrono::milliseconds delay, Task task)
{
    return hub_->subscribe(
        std::max(delay, std::chrono::milliseconds{0}), Hub::Repeats::once, std::move(task));
}

Subscription QtMainLoop::every(std::chrono::milliseconds interval, Task task)
{
    return hub_->subscribe(
        std::max(interval, std::chrono::milliseconds{1}), Hub::Repeats::always, std::move(task));
}

bool QtMainLoop::isCurrent() const
{
    return hub_->isOurThread();
}

int QtMainLoop::run()
{
    return QCoreApplication::exec();
}

void QtMainLoop::quit(int exitCode)
{
    post([exitCode] { QCoreApplication::exit(exitCode); });
}

}  // namespace fadeloom
