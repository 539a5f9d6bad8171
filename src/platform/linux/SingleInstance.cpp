// SPDX-License-Identifier: MIT
#include "platform/linux/SingleInstance.h"

#include "platform/linux/InstanceBus.h"
#include "platform/linux/InstanceSocket.h"

#include <QDeadlineTimer>

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
    : lock_(runtimeFolder / "fadeloom.lock")
    , bus_(std::make_unique<InstanceBus>([this](InstanceRequest request) { return answer(request); }))
    , socket_(std::make_unique<InstanceSocket>(
          runtimeFolder / "fadeloom.socket", [this](InstanceRequest request) { return answer(request); },
          [this](const InstanceCommand& command) {
              const auto run = actions_.run;  // A command may destroy the server of the command.
              return run && !isEnding_ ? run(command) : busyAnswer();
          },
          [this](const InstanceCommand& command, const SendInstanceLine& send) -> std::shared_ptr<void> {
              if (actions_.watch && !isEnding_)
                  return actions_.watch(command, send);
              send(busyAnswer());
              return nullptr;
          }))
{
}

SingleInstance::~SingleInstance() = default;

void SingleInstance::serve(Actions actions)
{
    actions_ = std::move(actions);
    bus_->serve(actions_.tree);
    if (!actions_.watch)
        socket_->endWatches();
}

std::string SingleInstance::busyAnswer() const
{
    return isEnding_ ? "busy error it is ending" : "busy error it is starting or ending";
}

QDBusConnection SingleInstance::bus() const
{
    return bus_->connection();
}

SingleInstance::Start SingleInstance::claim(InstanceRequest request)
{
    QDeadlineTimer deadline(timeout);
    bool isAwaitingEnd = false;
    while (!tryToClaim()) {
        const auto answer = ask(request, left(deadline));
        if (answer == InstanceAnswer::done)
            return Start::answered;
        if (answer == InstanceAnswer::noPanel)
            return Start::withoutPanel;
        if (answer == InstanceAnswer::ending && !std::exchange(isAwaitingEnd, true))
            deadline.setRemainingTime(endingTimeout);
        if (deadline.hasExpired())
            return Start::unanswered;
        std::this_thread::sleep_for(pause);
    }
    return Start::first;
}

bool SingleInstance::tryToClaim()
{
    const auto outcome = lock_.tryToLock();
    if (outcome == InstanceLock::Outcome::heldByAnother)
        return false;
    // If locking is impossible, whichever instance replies is the first.
    const bool isAnswered = outcome == InstanceLock::Outcome::unusable
        && socket_->ask(InstanceRequest::ping, timeout).has_value();
    if (isAnswered || isAnotherOnBus()) {
        lock_.release();
        return false;
    }
    socket_->listen();
    return true;
}

// Requests the bus name, unless it belongs to an instance with another runtime directory, possibly on the same audio
// session.
bool SingleInstance::isAnotherOnBus()
{
    return bus_->isConnected() && !bus_->claim() && bus_->isHeldByInstance(timeout);
}

std::optional<InstanceAnswer> SingleInstance::ask(InstanceRequest request, std::chrono::milliseconds wait)
{
    const QDeadlineTimer deadline(wait);
    // The socket first: it belongs to the user, whereas a bus name may belong to a stranger that never replies.
    if (const auto answer = socket_->ask(request, wait))
        return answer;
    if (!bus_->isConnected())
        return std::nullopt;
    return bus_->ask(request, left(deadline));
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
