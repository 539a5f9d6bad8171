// SPDX-License-Identifier: MIT
#include "platform/macos/TccPermission.h"

#include "platform/macos/BlockRef.h"

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
    const BlockRef<Answered> block(^(bool isGranted) { answered(isGranted); });
    request_(service(), nullptr, block.get());
}

}  // namespace fadeloom
