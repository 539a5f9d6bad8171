// SPDX-License-Identifier: MIT
// The privacy database's permission to capture other applications' audio.
#pragma once

#include "platform/CapturePermission.h"
#include "platform/macos/DynamicLibrary.h"

#include <CoreFoundation/CoreFoundation.h>

namespace fadeloom {

/// No public function covers this permission, so two private ones are looked up, once, and may be missing.
class TccPermission final : public CapturePermission {
public:
    static constexpr const char* framework = "/System/Library/PrivateFrameworks/TCC.framework/Versions/A/TCC";

    explicit TccPermission(const char* library = framework);

    std::optional<int> preflight() const override;
    bool canRequest() const override { return request_ != nullptr; }
    void request(std::function<void(bool isGranted)> answered) override;

private:
    using Answered = void (^)(bool isGranted);
    using Preflight = int(CFStringRef service, CFDictionaryRef options);
    using Request = void(CFStringRef service, CFDictionaryRef options, Answered answered);

    const DynamicLibrary library_;
    Preflight* const preflight_;
    Request* const request_;
};

}  // namespace fadeloom
