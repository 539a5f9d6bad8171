// SPDX-License-Identifier: MIT
#include "platform/macos/AppIconFiles.h"

#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>

#include <system_error>
#include <utility>

namespace fadeloom {
namespace {

// Pixels: the panel shows it at 28 points, of up to three pixels each.
constexpr double side = 128;

NSData* pngOf(NSImage* image)
{
    NSRect square = NSMakeRect(0, 0, side, side);
    CGImageRef drawn = [image CGImageForProposedRect:&square context:nil hints:nil];
    if (drawn == nullptr)
        return nil;
    return [[[NSBitmapImageRep alloc] initWithCGImage:drawn] representationUsingType:NSBitmapImageFileTypePNG
                                                                          properties:@{}];
}

}  // namespace

AppIconFiles::AppIconFiles(std::filesystem::path folder)
    : folder_(std::move(folder))
{
}

std::optional<AppIcon> AppIconFiles::iconOf(NSRunningApplication* application)
{
    const auto bundle = pathOf(application.bundleURL);
    if (!bundle)
        return std::nullopt;
    const auto [entry, isNew] = written_.try_emplace(*bundle);
    if (isNew) {
        std::error_code ignored;  // Writing fails then, too.
        std::filesystem::create_directories(folder_, ignored);
        const auto file = folder_ / (std::to_string(written_.size()) + ".png");
        if ([pngOf(application.icon) writeToURL:nsURL(file) atomically:YES])
            entry->second = AppIcon{.themeName = {}, .file = file};
    }
    return entry->second;
}

}  // namespace fadeloom
