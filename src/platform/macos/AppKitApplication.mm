// SPDX-License-Identifier: MIT
#include "platform/macos/AppKitApplication.h"

#include "platform/macos/Activation.h"
#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>

namespace fadeloom {
namespace {

NSAppearance* appearanceOf(Application::Appearance appearance)
{
    switch (appearance) {
    case Application::Appearance::light:
        return [NSAppearance appearanceNamed:NSAppearanceNameAqua];
    case Application::Appearance::dark:
        return [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    case Application::Appearance::system:
        return nil;
    }
    return nil;
}

NSAttributedString* creditsText(const AboutCredits& credits)
{
    NSFont* font = [NSFont systemFontOfSize:11];
    NSMutableAttributedString* text = [[NSMutableAttributedString alloc]
        initWithString:nsText(credits.text + "\n\n")
            attributes:@{NSFontAttributeName : font, NSForegroundColorAttributeName : NSColor.labelColor}];
    [text appendAttributedString:[[NSAttributedString alloc]
                                     initWithString:nsText(credits.linkText)
                                         attributes:@{
                                             NSFontAttributeName : font,
                                             NSLinkAttributeName : nsText(credits.linkURL)
                                         }]];
    NSMutableParagraphStyle* centred = [[NSMutableParagraphStyle alloc] init];
    centred.alignment = NSTextAlignmentCenter;
    [text addAttribute:NSParagraphStyleAttributeName value:centred range:NSMakeRange(0, text.length)];
    return text;
}

}  // namespace

void AppKitApplication::setAppearance(Appearance appearance)
{
    @autoreleasepool {
        NSApp.appearance = appearanceOf(appearance);
    }
}

void AppKitApplication::activate()
{
    comeToFront();
}

void AppKitApplication::showAboutPanel(const AboutCredits& credits)
{
    @autoreleasepool {
        activate();
        [NSApp orderFrontStandardAboutPanelWithOptions:@{NSAboutPanelOptionCredits : creditsText(credits)}];
    }
}

}  // namespace fadeloom
