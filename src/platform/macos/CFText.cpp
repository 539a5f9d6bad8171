// SPDX-License-Identifier: MIT
#include "platform/macos/CFText.h"

namespace fadeloom {
namespace {

CFStringRef createText(std::string_view text)
{
    return CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
        static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false);
}

}  // namespace

CFRef<CFStringRef> cfText(std::string_view text)
{
    auto made = CFRef<CFStringRef>::adopt(createText(text));
    return made ? std::move(made) : CFRef<CFStringRef>::adopt(createText(""));
}

std::string textOf(CFStringRef text)
{
    const CFIndex size =
        CFStringGetMaximumSizeForEncoding(CFStringGetLength(text), kCFStringEncodingUTF8) + 1;
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!CFStringGetCString(text, bytes.data(), size, kCFStringEncodingUTF8))
        return {};
    bytes.resize(bytes.find('\0'));
    return bytes;
}

}  // namespace fadeloom
