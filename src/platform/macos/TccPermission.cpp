// SPDX-License-Identifier: MIT
#include "platform/macos/TccPermission.h"

#include "platform/macos/BlockRef.h"

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace fadeloom {
namespace {

CFStringRef service()
{
    return CFSTR("kTCCServiceAudioCapture");
}

}  // namespace

TccPermission::TccPermission(const char* library)
    : library_(library)
    , preflight_(library_.function<Preflight>("TCCAccessPreflight"))
    , request_(library_.function<Request>("TCCAccessRequest"))
{
}

std::optional<int> TccPermission::preflight() const
{
    return preflight_ == nullptr ? std::nullopt : std::optional(preflight_(service(), nullptr));
}

void TccPermission::request(std::function<void(bool isGranted)> answered)
{
    using Answered = void (^)(bool isGranted);
    const BlockRef<Answered> block(^(bool isGranted) { answered(isGranted); });
    request_(service(), nullptr, reinterpret_cast<const void*>(block.get()));
}

}  // namespace fadeloom
