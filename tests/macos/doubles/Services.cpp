// SPDX-License-Identifier: MIT
// The unfair lock, the unified log, and the responsible process.
#include "tests/macos/doubles/Services.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

#include <os/lock.h>
#include <os/log.h>
#include <sys/types.h>

#include <atomic>
#include <cstdarg>
#include <cstring>
#include <mutex>
#include <thread>

struct os_log_s {
    std::string name;
};

namespace doubles {

std::map<std::int32_t, std::int32_t>& responsiblePids()
{
    static std::map<std::int32_t, std::int32_t> pids;
    return pids;
}

namespace {

/// The owner of a lock, as stored in the lock itself: a number for each thread, 0 for none.
std::uint32_t ownNumber()
{
    static std::atomic<std::uint32_t> last = 0;
    static thread_local const std::uint32_t own = ++last;
    return own;
}

std::atomic_ref<std::uint32_t> ownerOf(os_unfair_lock_t lock)
{
    return std::atomic_ref(lock->_os_unfair_lock_opaque);
}

}  // namespace
}  // namespace doubles

using namespace doubles;

extern "C" {

bool os_unfair_lock_trylock(os_unfair_lock_t lock)
{
    std::uint32_t nobody = 0;
    return ownerOf(lock).compare_exchange_strong(nobody, ownNumber());
}

void os_unfair_lock_lock(os_unfair_lock_t lock)
{
    if (ownerOf(lock) == ownNumber())
        crash("an unfair lock was locked by its owner");
    while (!os_unfair_lock_trylock(lock))
        std::this_thread::yield();
}

void os_unfair_lock_unlock(os_unfair_lock_t lock)
{
    if (ownerOf(lock) != ownNumber())
        crash("an unfair lock was unlocked by another than its owner");
    ownerOf(lock) = 0;
}

os_log_t os_log_create(const char* subsystem, const char* category)
{
    static os_log_s only;
    only.name = std::string(subsystem) + ' ' + category;
    return &only;
}

void fadeloomLogWithType(os_log_t log, os_log_type_t type, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const char* const text = va_arg(arguments, const char*);
    const bool isReadable = std::strcmp(format, "%{public}s") == 0;
    note(log->name + ' ' + std::to_string(type) + ' ' + (isReadable ? text : "<private>"));
    va_end(arguments);
}

/// Looked up by name, as on the platform.
__attribute__((visibility("default"))) pid_t responsibility_get_pid_responsible_for_pid(pid_t pid)
{
    const auto found = responsiblePids().find(pid);
    return found == responsiblePids().end() ? -1 : found->second;
}
}
