// SPDX-License-Identifier: MIT
#include "tests/macos/TccDouble.h"

#include <Block.h>
#include <CoreFoundation/CoreFoundation.h>

#include <array>

namespace {

fadeloom::TccDouble& only()
{
    static fadeloom::TccDouble made;
    return made;
}

void noteQuestion(CFStringRef service, CFDictionaryRef options)
{
    std::array<char, 64> text{};
    CFStringGetCString(service, text.data(), text.size(), kCFStringEncodingUTF8);
    only().service = text.data();
    only().hadOptions = options != nullptr;
}

}  // namespace

extern "C" {

fadeloom::TccDouble* tccDouble()
{
    return &only();
}

int TCCAccessPreflight(CFStringRef service, CFDictionaryRef options)
{
    noteQuestion(service, options);
    return only().preflightAnswer;
}

void TCCAccessRequest(CFStringRef service, CFDictionaryRef options, void (^done)(bool isGranted))
{
    noteQuestion(service, options);
    const auto kept = Block_copy(done);
    only().answer = [kept](bool isGranted) {
        kept(isGranted);
        Block_release(kept);
    };
}
}
