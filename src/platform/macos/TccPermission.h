// SPDX-License-Identifier: MIT
// The privacy database's word on capturing what other applications play.
#pragma once

#include "platform/CapturePermission.h"
#include "platform/macos/DynamicLibrary.h"

namespace fadeloom {

/// No public function asks for this permission, so the two that do are looked up, once, and may be missing.
class TccPermission final : public CapturePermission {
public:
    static constexpr const char* framework = "/System/Library/PrivateFrameworks/TCC.framework/Versions/A/TCC";

    explicit TccPermission(const char* library = framework);

    std::optional<int> preflight() const override;
    bool canRequest() const override { return request_ != nullptr; }
    void request(std::function<void(bool isGranted)> answered) override;

private:
    // Their first argument is a text, the second a dictionary or null, the third a block that takes the answer.
    using Preflight = int(const void* service, const void* options);
    using Request = void(const void* service, const void* options, const void* answered);

    const DynamicLibrary library_;
    Preflight* const preflight_;
    Request* const request_;
};

}  // namespace fadeloom
