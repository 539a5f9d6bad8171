// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedMainLoop.h"

#include <algorithm>

namespace fadeloom {

namespace {

thread_local int otherThreadDepth = 0;

}  // namespace

struct SimulatedMainLoop::Timer : std::enable_shared_from_this<Timer> {
    Timer(SimulatedClock& itsClock, std::chrono::milliseconds itsInterval, Task itsTask)
        : clock(itsClock)
        , interval(itsInterval)
        , task(std::move(itsTask))
    {
    }

    void schedule(SimulatedClock::Duration delay)
    {
        event = clock.schedule(delay, [self = shared_from_this()] { self->fire(); });
    }

    void fire()
    {
        if (!isAlive)
            return;
        // Before the task: it may end its own subscription, which must then cancel the next event.
        if (interval > std::chrono::milliseconds{0})
            schedule(interval);
        else
            isAlive = false;
        const Task running = task;
        running();
    }

    /// `isClockThere`: expires with the loop, whose clock need not outlive it by much.
    void end(bool isClockThere)
    {
        isAlive = false;
        if (isClockThere)
            clock.cancel(event);
    }

    SimulatedClock& clock;
    const std::chrono::milliseconds interval;  // 0 for one-shot.
    const Task task;
    bool isAlive = true;
    SimulatedClock::EventID event = 0;
};

SimulatedMainLoop::OtherThread::OtherThread()
{
    ++otherThreadDepth;
}

SimulatedMainLoop::OtherThread::~OtherThread()
{
    --otherThreadDepth;
}

SimulatedMainLoop::SimulatedMainLoop(SimulatedClock& clock)
    : clock_(clock)
{
}

void SimulatedMainLoop::post(Task task)
{
    const std::scoped_lock guard{mutex_};
    posted_.push_back(std::move(task));
}

Subscription SimulatedMainLoop::after(std::chrono::milliseconds delay, Task task)
{
    return startTimer(std::make_shared<Timer>(clock_, std::chrono::milliseconds{0}, std::move(task)), delay);
}

Subscription SimulatedMainLoop::every(std::chrono::milliseconds interval, Task task)
{
    interval = std::max(interval, std::chrono::milliseconds{1});
    return startTimer(std::make_shared<Timer>(clock_, interval, std::move(task)), interval);
}

Subscription SimulatedMainLoop::startTimer(std::shared_ptr<Timer> timer, SimulatedClock::Duration delay)
{
    timer->schedule(delay);
    std::erase_if(timers_, [](const auto& known) { return known.expired(); });
    timers_.push_back(timer);
    return Subscription{[timer, weakly = std::weak_ptr{presence_}] { timer->end(!weakly.expired()); }};
}

long SimulatedMainLoop::timerCount() const
{
    return std::ranges::count_if(timers_, [](const auto& known) {
        const auto timer = known.lock();
        return timer && timer->isAlive;
    });
}

bool SimulatedMainLoop::isCurrent() const
{
    return std::this_thread::get_id() == thread_ && otherThreadDepth == 0;
}

void SimulatedMainLoop::runTurn()
{
    std::deque<Task> turn;
    {
        const std::scoped_lock guard{mutex_};
        turn.swap(posted_);
    }
    for (Task& task : turn) {
        const Task running = std::move(task);
        running();
    }
}

void SimulatedMainLoop::runPosted()
{
    const auto isEmpty = [this] {
        const std::scoped_lock guard{mutex_};
        return posted_.empty();
    };
    while (!isEmpty())
        runTurn();
}

void SimulatedMainLoop::advance(SimulatedClock::Duration duration)
{
    const auto end = clock_.now() + duration;
    runPosted();
    while (clock_.runNextBy(end))
        runPosted();
    clock_.moveTo(end);
}

}  // namespace fadeloom
