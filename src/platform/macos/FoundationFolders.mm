// SPDX-License-Identifier: MIT
#include "platform/macos/FoundationFolders.h"

#include "platform/macos/NSText.h"

namespace fadeloom {
namespace {

std::filesystem::path folder(NSSearchPathDirectory which)
{
    @autoreleasepool {
        NSURL* found =
            [NSFileManager.defaultManager URLsForDirectory:which inDomains:NSUserDomainMask].firstObject;
        return pathOf(found).value_or(std::filesystem::path());
    }
}

}  // namespace

std::filesystem::path FoundationFolders::applicationSupport() const
{
    return folder(NSApplicationSupportDirectory);
}

std::filesystem::path FoundationFolders::music() const
{
    return folder(NSMusicDirectory);
}

std::filesystem::path FoundationFolders::caches() const
{
    return folder(NSCachesDirectory);
}

}  // namespace fadeloom
