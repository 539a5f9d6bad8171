// SPDX-License-Identifier: MIT
#include "platform/macos/AppIconFiles.h"

#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace fadeloom {
namespace {

// Pixels: the panel shows it at 28 points, with up to three pixels each.
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

std::optional<AppIcon> written(NSRunningApplication* application, const std::filesystem::path& file)
{
    @autoreleasepool {
        std::error_code ignored;  // Writing fails then too.
        std::filesystem::create_directories(file.parent_path(), ignored);
        if (![pngOf(application.icon) writeToURL:nsURL(file) atomically:YES])
            return std::nullopt;
        return AppIcon{.themeName = {}, .file = file};
    }
}

}  // namespace

/// The state of each bundle, by location.
struct AppIconFiles::Bundles {
    struct Bundle {
        bool isDrawn = false;
        std::optional<AppIcon> icon{};
        std::vector<Found> waiting{};
    };

    void drawn(const std::filesystem::path& location, const std::optional<AppIcon>& icon)
    {
        Bundle& bundle = byLocation[location];
        bundle.isDrawn = true;
        bundle.icon = icon;
        for (const Found& found : std::exchange(bundle.waiting, {}))
            if (icon)
                found(*icon);
    }

    std::map<std::filesystem::path, Bundle> byLocation{};
};

AppIconFiles::AppIconFiles(std::filesystem::path folder)
    : folder_(std::move(folder))
    , bundles_(std::make_shared<Bundles>())
{
}

AppIconFiles::~AppIconFiles() = default;

void AppIconFiles::find(NSRunningApplication* application, Found found)
{
    const auto location = pathOf(application.bundleURL);
    if (!location)
        return;
    const auto [entry, isNew] = bundles_->byLocation.try_emplace(*location);
    if (entry->second.isDrawn) {
        if (entry->second.icon)
            found(*entry->second.icon);
        return;
    }
    entry->second.waiting.push_back(std::move(found));
    if (!isNew)
        return;
    const auto file = folder_ / (std::to_string(bundles_->byLocation.size()) + ".png");
    queue_.submit(std::chrono::milliseconds(0),
        [application, file, location = *location, weakly = std::weak_ptr(bundles_)] {
            const auto icon = written(application, file);
            dispatch_async(dispatch_get_main_queue(), ^{
                if (const auto bundles = weakly.lock())
                    bundles->drawn(location, icon);
            });
        });
}

}  // namespace fadeloom
