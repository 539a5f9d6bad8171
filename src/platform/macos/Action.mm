// SPDX-License-Identifier: MIT
#import "platform/macos/Action.h"

#include <utility>

@implementation FadeloomAction {
    std::function<void()> function_;
}

- (instancetype)initWithFunction:(std::function<void()>)function
{
    if ((self = [super init]))
        function_ = std::move(function);
    return self;
}

- (void)act:(id)sender
{
    (void)sender;
    function_();
}

@end
