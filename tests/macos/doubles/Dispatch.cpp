// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/Dispatch.h"

#include "tests/macos/doubles/Runtime.h"
#include "tests/macos/doubles/RuntimeClasses.h"

#include <Block.h>
#include <dispatch/dispatch.h>

#include <algorithm>
#include <list>
#include <map>
#include <mutex>
#include <utility>

extern "C" const doubles::ClassData immortalClass __asm__("OBJC_CLASS_$_ImmortalObject");

/// To Objective-C a queue is an object; to its creator in C++, a reference to be released once.
struct dispatch_queue_s {
    const void* type = &immortalClass;
    int references = 1;
    unsigned int quality = 0;  // Also of an attribute.
};

namespace doubles {
namespace {

struct Waiting {
    std::uint64_t due;
    dispatch_queue_t queue;
    dispatch_block_t block;
};

struct Queues {
    std::recursive_mutex mutex;
    unsigned int lastQuality = 0;
    std::uint64_t now = 1;
    std::list<Waiting> waiting;  // By due time, then in the order submitted.
};

Queues& queues()
{
    static auto& made = *new Queues;
    return made;
}

thread_local dispatch_queue_t current = nullptr;

/// While a block of a queue is running.
class Turn {
public:
    explicit Turn(dispatch_queue_t queue)
        : former_(std::exchange(current, queue))
    {
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { current = former_; }

private:
    const dispatch_queue_t former_;
};

void add(std::uint64_t due, dispatch_queue_t queue, dispatch_block_t block)
{
    const std::scoped_lock guard(queues().mutex);
    auto& waiting = queues().waiting;
    ++queue->references;
    const auto place = std::ranges::find_if(waiting, [due](const Waiting& other) { return other.due > due; });
    waiting.insert(place, {due, queue, Block_copy(block)});
}

void drop(const Waiting& done)
{
    Block_release(done.block);
    dispatch_release(done.queue);
}

bool runOne(std::uint64_t until, dispatch_queue_t only)
{
    std::list<Waiting> taken;
    {
        const std::scoped_lock guard(queues().mutex);
        auto& waiting = queues().waiting;
        const auto found = std::ranges::find_if(waiting, [&](const Waiting& each) {
            return each.due <= until && (only == nullptr || each.queue == only);
        });
        if (found == waiting.end())
            return false;
        queues().now = std::max(queues().now, found->due);
        taken.splice(taken.begin(), waiting, found);
    }
    {
        const AutoreleasePool pool;
        const Turn turn(taken.front().queue);
        taken.front().block();
    }
    drop(taken.front());
    return true;
}

}  // namespace

void runQueues()
{
    while (runOne(queues().now, nullptr)) { }
}

void advanceQueues(std::chrono::nanoseconds duration)
{
    const std::uint64_t end = queues().now + static_cast<std::uint64_t>(duration.count());
    while (runOne(end, nullptr)) { }
    queues().now = end;
}

void clearQueues()
{
    std::list<Waiting> dropped;
    {
        const std::scoped_lock guard(queues().mutex);
        dropped.swap(queues().waiting);
    }
    std::ranges::for_each(dropped, drop);
}

bool isOnMainQueue()
{
    return current == nullptr || current == &_dispatch_main_q;
}

unsigned int lastQuality()
{
    return queues().lastQuality;
}

}  // namespace doubles

using namespace doubles;

extern "C" {

dispatch_queue_s _dispatch_main_q;

dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(
    dispatch_queue_attr_t attributes, dispatch_qos_class_t quality, int)
{
    if (attributes != DISPATCH_QUEUE_SERIAL)
        crash("a queue that would run pieces of work at the same time");
    static std::map<dispatch_qos_class_t, dispatch_queue_s> made;
    made[quality].quality = quality;
    return &made[quality];
}

dispatch_queue_t dispatch_queue_create(const char*, dispatch_queue_attr_t attributes)
{
    auto* const queue = new dispatch_queue_s;
    queue->quality = attributes == DISPATCH_QUEUE_SERIAL ? 0 : attributes->quality;
    queues().lastQuality = queue->quality;
    return queue;
}

void dispatch_release(dispatch_queue_t queue)
{
    if (--queue->references == 0)
        delete queue;
}

void dispatch_async(dispatch_queue_t queue, dispatch_block_t block)
{
    add(queues().now, queue, block);
}

void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block)
{
    add(when, queue, block);
}

void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block)
{
    if (queue == &_dispatch_main_q)
        crash("waited for the main queue");
    while (runOne(queues().now, queue)) { }  // Earlier blocks come first.
    const Turn turn(queue);
    block();
}

dispatch_time_t dispatch_time(dispatch_time_t when, int64_t nanoseconds)
{
    if (when != DISPATCH_TIME_NOW)
        crash("a time that is not counted from now");
    return queues().now + static_cast<std::uint64_t>(nanoseconds);
}
}
