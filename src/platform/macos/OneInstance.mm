// SPDX-License-Identifier: MIT
#include "platform/macos/OneInstance.h"

#import <Foundation/Foundation.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

namespace fadeloom {
namespace {

// The file's contents describe the instance that holds the lock.
constexpr char withPanel = 'p';
constexpr char withoutPanel = 'h';
constexpr char ending = 'e';

constexpr std::chrono::milliseconds lookInterval{50};
NSNotificationName const openRequest = @"com.fadeloom.app.open";

}  // namespace

/// Receives notifications from other instances, possibly of another build: only the name is shared.
class OneInstance::Requests {
public:
    explicit Requests(std::function<void()> open)
        : observer_([NSDistributedNotificationCenter.defaultCenter
              addObserverForName:openRequest
                          object:nil
                           queue:nil
                      usingBlock:^(NSNotification*) { open(); }])
    {
    }
    Requests(const Requests&) = delete;
    Requests& operator=(const Requests&) = delete;
    ~Requests() { [NSDistributedNotificationCenter.defaultCenter removeObserver:observer_]; }

private:
    const id observer_;
};

OneInstance::OneInstance(std::filesystem::path folder)
    : file_(std::move(folder) / "instance.lock")
{
}

OneInstance::~OneInstance() = default;

OneInstance::Start OneInstance::claim(bool hasPanel)
{
    if (file_.parent_path().empty())
        return Start::first;
    std::error_code ignored;  // Opening fails then too.
    std::filesystem::create_directories(file_.parent_path(), ignored);
    lock_.emplace(::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!lock_->isOpen())
        return Start::first;

    const bool isSuccessor = std::getenv(successorVariable) != nullptr;
    const auto end = std::chrono::steady_clock::now() + timeout;
    while (!tryToLock()) {
        const char kind = kindOfOther();
        if ((kind != ending && !isSuccessor) || std::chrono::steady_clock::now() >= end)
            return kind == withoutPanel ? Start::besideHeadless : Start::besidePanel;
        std::this_thread::sleep_for(lookInterval);
    }
    note(hasPanel ? withPanel : withoutPanel);
    return Start::first;
}

bool OneInstance::tryToLock()
{
    return ::flock(lock_->get(), LOCK_EX | LOCK_NB) == 0;
}

char OneInstance::kindOfOther() const
{
    char kind = withPanel;
    [[maybe_unused]] const auto count = ::pread(lock_->get(), &kind, 1, 0);
    return kind;
}

void OneInstance::note(char kind)
{
    [[maybe_unused]] const auto count = ::pwrite(lock_->get(), &kind, 1, 0);
}

void OneInstance::askToOpen() const
{
    @autoreleasepool {
        // Deliver immediately: otherwise notifications to an inactive program are held back.
        [NSDistributedNotificationCenter.defaultCenter postNotificationName:openRequest
                                                                     object:nil
                                                                   userInfo:nil
                                                         deliverImmediately:YES];
    }
}

void OneInstance::serve(std::function<void()> open)
{
    requests_ = open ? std::make_unique<Requests>(std::move(open)) : nullptr;
}

void OneInstance::beginEnding()
{
    if (lock_ && lock_->isOpen())
        note(ending);
}

}  // namespace fadeloom
