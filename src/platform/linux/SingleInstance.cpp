// SPDX-License-Identifier: MIT
#include "platform/linux/SingleInstance.h"

#include "platform/linux/InstanceBus.h"
#include "platform/linux/InstanceSocket.h"

#include <QDeadlineTimer>
#include <QFile>

#include <thread>
#include <utility>

namespace fadeloom {

namespace {

constexpr auto pause = std::chrono::milliseconds(50);

std::chrono::milliseconds left(const QDeadlineTimer& deadline)
{
    return std::chrono::milliseconds(deadline.remainingTime());
}

}  // namespace

SingleInstance::SingleInstance(const std::filesystem::path& runtimeFolder)
    : lock_(QFile::decodeName((runtimeFolder / "fadeloom.lock").c_str()))
    , bus_(std::make_unique<InstanceBus>([this](InstanceRequest request) { return answer(request); }))
    , socket_(std::make_unique<InstanceSocket>(
          runtimeFolder / "fadeloom.socket", [this](InstanceRequest request) { return answer(request); }))
{
    lock_.setStaleLockTime(0);  // Only the end of its process frees it, however long that runs.
}

SingleInstance::~SingleInstance() = default;

SingleInstance::Start SingleInstance::claim(InstanceRequest request)
{
    QDeadlineTimer deadline(patience);
    bool isAwaitingEnd = false;
    while (!tryToBeFirst()) {
        const auto answer = ask(request, left(deadline));
        if (answer == InstanceAnswer::done)
            return Start::answered;
        if (answer == InstanceAnswer::noPanel)
            return Start::withoutPanel;
        if (answer == InstanceAnswer::ending && !std::exchange(isAwaitingEnd, true))
            deadline.setRemainingTime(patienceWithEnding);
        if (deadline.hasExpired())
            return Start::unanswered;
        std::this_thread::sleep_for(pause);
    }
    return Start::first;
}

bool SingleInstance::tryToBeFirst()
{
    // Where nothing can be locked the bus decides alone.
    if (!lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError)
        return false;
    // A name that is taken belongs to a session with another runtime folder, and maybe the same sound.
    if (bus_->isConnected() && !bus_->claim()) {
        lock_.unlock();
        return false;
    }
    socket_->listen();
    return true;
}

std::optional<InstanceAnswer> SingleInstance::ask(InstanceRequest request, std::chrono::milliseconds wait)
{
    const QDeadlineTimer deadline(wait);
    if (bus_->isConnected())
        if (const auto answer = bus_->ask(request, wait))
            return answer;
    return socket_->ask(request, left(deadline));
}

InstanceAnswer SingleInstance::answer(InstanceRequest request)
{
    if (isEnding_)
        return InstanceAnswer::ending;
    if (request == InstanceRequest::ping)
        return InstanceAnswer::done;
    const auto& action = request == InstanceRequest::open ? actions_.open
        : request == InstanceRequest::toggle              ? actions_.toggle
                                                          : actions_.quit;
    if (!action)
        return InstanceAnswer::noPanel;
    action();
    return InstanceAnswer::done;
}

}  // namespace fadeloom
