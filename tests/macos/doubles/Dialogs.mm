// SPDX-License-Identifier: MIT
// Open panels and alerts.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"

#include <utility>

using namespace doubles;

UTType* const UTTypeApplicationBundle = [[UTType alloc] init];

@implementation UTType

- (NSString*)identifier
{
    return @"com.apple.application-bundle";
}

@end

@implementation NSOpenPanel

@synthesize prompt = prompt_;

+ (NSOpenPanel*)openPanel
{
    return [[NSOpenPanel alloc] init];
}
- (void)setPrompt:(NSString*)prompt
{
    prompt_ = prompt;
}
- (NSString*)prompt
{
    return prompt_;
}
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse))answered
{
    note("panel opens");
    // It is kept until it is answered, even if everybody else releases it.
    void (^kept)(NSModalResponse) = answered;
    desktop().whenPanelOpens(self, [kept](NSModalResponse response) { kept(response); });
}

@end

@implementation NSAlert

- (id)addButtonWithTitle:(NSString*)title
{
    note(std::string("button ") + title.UTF8String);
    return nil;
}
- (NSModalResponse)runModal
{
    note(std::string("alert ") + self.messageText.UTF8String + ": " + self.informativeText.UTF8String);
    return desktop().alertAnswer;
}

@end
