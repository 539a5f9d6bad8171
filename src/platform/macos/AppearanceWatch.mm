// SPDX-License-Identifier: MIT
#include "platform/macos/AppearanceWatch.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace {

bool isDrawnDark()
{
    @autoreleasepool {
        NSAppearanceName best = [NSApp.effectiveAppearance
            bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
        return [best isEqualToString:NSAppearanceNameDarkAqua];
    }
}

}  // namespace

@interface FadeloomAppearanceObserver : NSObject {
@public
    std::function<void(bool isDark)> changed;
}
@end

@implementation FadeloomAppearanceObserver

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context
{
    (void)keyPath;
    (void)object;
    (void)change;
    (void)context;
    changed(isDrawnDark());
}

@end

namespace fadeloom {
namespace {

NSString* const watchedKey = @"effectiveAppearance";

}  // namespace

class AppearanceWatch::Observation {
public:
    explicit Observation(std::function<void(bool isDark)> changed)
        : observer_([[FadeloomAppearanceObserver alloc] init])
    {
        observer_->changed = std::move(changed);
        [NSApp addObserver:observer_ forKeyPath:watchedKey options:0 context:nullptr];
    }
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() { [NSApp removeObserver:observer_ forKeyPath:watchedKey]; }

private:
    FadeloomAppearanceObserver* const observer_;
};

AppearanceWatch::AppearanceWatch(std::function<void(bool isDark)> changed)
    : observation_(std::make_unique<Observation>(std::move(changed)))
{
}

AppearanceWatch::~AppearanceWatch() = default;

bool AppearanceWatch::isDark() const
{
    return isDrawnDark();
}

}  // namespace fadeloom
