// SPDX-License-Identifier: MIT
// What we use of images, declared by us.
#pragma once

#include <Foundation/Foundation.h>

typedef struct CGImage* CGImageRef;

NS_ASSUME_NONNULL_BEGIN

@interface NSImage : NSObject
+ (nullable NSImage*)imageNamed:(NSString*)name;
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)rectangle
                                      context:(nullable id)context
                                        hints:(nullable NSDictionary<NSString*, id>*)hints;
@end

typedef NS_ENUM(NSUInteger, NSBitmapImageFileType) { NSBitmapImageFileTypePNG = 4 };

@interface NSBitmapImageRep : NSObject
- (instancetype)initWithCGImage:(CGImageRef)image;
- (nullable NSData*)representationUsingType:(NSBitmapImageFileType)type
                                 properties:(NSDictionary<NSString*, id>*)properties;
@end

NS_ASSUME_NONNULL_END
