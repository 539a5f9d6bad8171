// SPDX-License-Identifier: MIT
#include "tests/support/RealTimeGuard.h"

#include "base/RealTime.h"

#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstddef>
#include <ctime>

// On a Mac a program's functions do not interpose those of libraries.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || defined(__APPLE__)
#define FADELOOM_GUARDS 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define FADELOOM_GUARDS 0
#endif
#endif
#ifndef FADELOOM_GUARDS
#define FADELOOM_GUARDS 1
#endif

namespace fadeloom {

namespace {

std::atomic<int> violations = 0;
std::atomic<const char*> lastViolation = "";

[[maybe_unused]] void note(const char* function)
{
    if (!RealTimeSection::isActive())
        return;
    violations.fetch_add(1, std::memory_order_relaxed);
    lastViolation.store(function, std::memory_order_relaxed);
}

// The interposed function of the library.
template <typename Function>
[[maybe_unused]] Function original(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

bool isGuarding()
{
    return FADELOOM_GUARDS != 0;
}

int realTimeViolations()
{
    return violations;
}

std::string lastRealTimeViolation()
{
    return lastViolation.load();
}

}  // namespace fadeloom

#if FADELOOM_GUARDS

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void __libc_free(void* memory);

void* malloc(std::size_t size)
{
    fadeloom::note("malloc");
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    fadeloom::note("calloc");
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    fadeloom::note("realloc");
    return __libc_realloc(memory, size);
}

void free(void* memory)
{
    fadeloom::note("free");
    __libc_free(memory);
}

int pthread_mutex_lock(pthread_mutex_t* mutex)
{
    static const auto lock = fadeloom::original<int (*)(pthread_mutex_t*)>("pthread_mutex_lock");
    fadeloom::note("pthread_mutex_lock");
    return lock(mutex);
}

int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex)
{
    static const auto wait =
        fadeloom::original<int (*)(pthread_cond_t*, pthread_mutex_t*)>("pthread_cond_wait");
    fadeloom::note("pthread_cond_wait");
    return wait(condition, mutex);
}

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    fadeloom::note("write");
    return ::syscall(SYS_write, descriptor, bytes, count);
}

ssize_t read(int descriptor, void* bytes, std::size_t count)
{
    fadeloom::note("read");
    return ::syscall(SYS_read, descriptor, bytes, count);
}

int poll(pollfd* descriptors, nfds_t count, int timeout)
{
    static const auto wait = fadeloom::original<int (*)(pollfd*, nfds_t, int)>("poll");
    fadeloom::note("poll");
    return wait(descriptors, count, timeout);
}

int nanosleep(const timespec* duration, timespec* rest)
{
    static const auto sleep = fadeloom::original<int (*)(const timespec*, timespec*)>("nanosleep");
    fadeloom::note("nanosleep");
    return sleep(duration, rest);
}

int clock_nanosleep(clockid_t clock, int flags, const timespec* duration, timespec* rest)
{
    static const auto sleep =
        fadeloom::original<int (*)(clockid_t, int, const timespec*, timespec*)>("clock_nanosleep");
    fadeloom::note("clock_nanosleep");
    return sleep(clock, flags, duration, rest);
}

int sched_yield()
{
    static const auto yield = fadeloom::original<int (*)()>("sched_yield");
    fadeloom::note("sched_yield");
    return yield();
}
}

#endif
