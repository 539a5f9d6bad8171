// SPDX-License-Identifier: MIT
// Attributed strings.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

using namespace doubles;

NSAttributedStringKey const NSFontAttributeName = @"font";
NSAttributedStringKey const NSForegroundColorAttributeName = @"colour";
NSAttributedStringKey const NSLinkAttributeName = @"link";
NSAttributedStringKey const NSParagraphStyleAttributeName = @"paragraph";

@implementation NSAttributedString {
@protected
    std::vector<std::pair<std::string, NSDictionary*>> runs_;
}

- (instancetype)initWithString:(NSString*)text attributes:(NSDictionary*)attributes
{
    if ((self = [super init]))
        runs_.emplace_back(text.UTF8String, attributes);
    return self;
}
- (std::vector<std::pair<std::string, NSDictionary*>>)runs
{
    return runs_;
}
- (NSString*)string
{
    std::string whole;
    for (const auto& run : runs_)
        whole += run.first;
    return [NSString stringWithUTF8String:whole.c_str()];
}
- (NSUInteger)length
{
    return self.string.length;
}

@end

@implementation NSMutableAttributedString

- (void)appendAttributedString:(NSAttributedString*)text
{
    for (const auto& run : text.runs)
        runs_.push_back(run);
}
- (void)addAttribute:(NSAttributedStringKey)name value:(id)value range:(NSRange)range
{
    if (range.location != 0 || range.length != self.length)
        crash("only whole texts are styled here");
    note(std::string("style all with ") + name.UTF8String + ' '
        + std::to_string(static_cast<NSMutableParagraphStyle*>(value).alignment));
}

@end

@implementation NSMutableParagraphStyle
@end

@implementation NSFont {
    double size_;
}

+ (NSFont*)systemFontOfSize:(double)size
{
    NSFont* made = [[NSFont alloc] init];
    made->size_ = size;
    return made;
}
- (double)pointSize
{
    return size_;
}

@end

@implementation NSColor

+ (NSColor*)labelColor
{
    return [[NSColor alloc] init];
}

@end
