// SPDX-License-Identifier: MIT
#include "control/AudioPermission.h"

#include <utility>

namespace fadeloom {

AudioPermission::State AudioPermission::current() const
{
    const auto answer = capturePermission_.preflight();
    if (!answer)
        return State::granted;
    switch (*answer) {
    case 0:
        return State::granted;
    case 1:
        return State::denied;
    default:
        return State::notDetermined;
    }
}

void AudioPermission::requestAccess(std::function<void(bool isGranted)> completion) const
{
    // The reply may arrive on any thread, and must be handled on the main one.
    capturePermission_.request([&mainLoop = mainLoop_, completion = std::move(completion)](bool isGranted) {
        mainLoop.post([completion, isGranted] { completion(isGranted); });
    });
}

std::string_view AudioPermission::name(State state)
{
    switch (state) {
    case State::granted:
        return "granted";
    case State::denied:
        return "denied";
    case State::notDetermined:
        return "notDetermined";
    }
    return "";
}

}  // namespace fadeloom
