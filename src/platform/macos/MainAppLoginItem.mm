// SPDX-License-Identifier: MIT
#include "platform/macos/MainAppLoginItem.h"

#include "platform/macos/NSText.h"

#import <ServiceManagement/ServiceManagement.h>

namespace fadeloom {
namespace {

std::expected<void, LoginItemError> outcome(BOOL isDone, NSError* error)
{
    if (isDone)
        return {};
    return std::unexpected(SystemMessage{textOf(error.localizedDescription).value_or("")});
}

}  // namespace

LoginItem::Status MainAppLoginItem::status() const
{
    @autoreleasepool {
        switch (SMAppService.mainAppService.status) {
        case SMAppServiceStatusEnabled:
            return Status::enabled;
        case SMAppServiceStatusRequiresApproval:
            return Status::requiresApproval;
        case SMAppServiceStatusNotFound:
            return Status::notFound;
        case SMAppServiceStatusNotRegistered:
            return Status::notRegistered;
        }
        return Status::notRegistered;
    }
}

std::expected<void, LoginItemError> MainAppLoginItem::registerItem()
{
    @autoreleasepool {
        if (status() == Status::enabled)
            return {};
        NSError* error = nil;
        const BOOL isDone = [SMAppService.mainAppService registerAndReturnError:&error];
        return outcome(isDone, error);
    }
}

std::expected<void, LoginItemError> MainAppLoginItem::unregisterItem()
{
    @autoreleasepool {
        if (status() == Status::notRegistered)
            return {};
        NSError* error = nil;
        const BOOL isDone = [SMAppService.mainAppService unregisterAndReturnError:&error];
        return outcome(isDone, error);
    }
}

}  // namespace fadeloom
