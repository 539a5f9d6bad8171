// SPDX-License-Identifier: MIT
// Images, which consist only of their names.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Dispatch.h"
#include "tests/macos/doubles/Journal.h"

#include <fstream>
#include <string>

using namespace doubles;

@implementation NSData {
@public
    std::string bytes_;
}

- (BOOL)writeToURL:(NSURL*)location atomically:(BOOL)isAtomic
{
    std::ofstream file(location.path.UTF8String, std::ios::binary);
    file << bytes_;
    return isAtomic && file.good();
}

@end

/// A bitmap to draw into, which consists only of its name.
struct CGImage {
    std::string drawn;
};

@implementation NSImage {
    CGImage image_;
    BOOL isTemplate_;
}

+ (NSImage*)imageNamed:(NSString*)name
{
    NSImage* made = [[NSImage alloc] init];
    made->image_.drawn = name.UTF8String;
    return made;
}
- (NSString*)drawnName
{
    return [NSString stringWithUTF8String:image_.drawn.c_str()];
}
- (BOOL)isTemplate
{
    return isTemplate_;
}
- (void)setTemplate:(BOOL)isTemplate
{
    isTemplate_ = isTemplate;
}
- (CGImageRef)CGImageForProposedRect:(NSRect*)rectangle context:(id)context hints:(NSDictionary*)hints
{
    (void)context, (void)hints;
    note("draw " + image_.drawn + " at " + std::to_string(static_cast<int>(rectangle->size.width))
        + (isOnMainQueue() ? " on the main queue" : ""));
    return image_.drawn.empty() ? nullptr : &image_;
}

@end

@implementation NSBitmapImageRep {
    std::string drawn_;
}

- (instancetype)initWithCGImage:(CGImageRef)image
{
    if ((self = [super init]))
        drawn_ = image->drawn;
    return self;
}
- (NSData*)representationUsingType:(NSBitmapImageFileType)type properties:(NSDictionary*)properties
{
    (void)properties;
    NSData* made = [[NSData alloc] init];
    made->bytes_ = (type == NSBitmapImageFileTypePNG ? "PNG of " : "no PNG of ") + drawn_;
    return made;
}

@end
