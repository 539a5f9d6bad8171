// SPDX-License-Identifier: MIT
#include "platform/macos/AggregateDictionary.h"

#include "platform/macos/CFText.h"

#include <CoreAudio/CoreAudio.h>

#include <string>
#include <vector>

namespace fadeloom {
namespace {

/// A dictionary builder, which keeps the values' objects alive until it is done.
class Entries {
public:
    void add(const char* key, CFTypeRef value)
    {
        kept_.push_back(cfText(key));
        keys_.push_back(kept_.back().get());
        values_.push_back(value);
    }
    void add(const char* key, const std::string& value)
    {
        kept_.push_back(cfText(value));
        add(key, static_cast<CFTypeRef>(kept_.back().get()));
    }

    [[nodiscard]] CFRef<CFDictionaryRef> dictionary()
    {
        return CFRef<CFDictionaryRef>::adopt(CFDictionaryCreate(kCFAllocatorDefault, keys_.data(),
            values_.data(), static_cast<CFIndex>(keys_.size()), &kCFTypeDictionaryKeyCallBacks,
            &kCFTypeDictionaryValueCallBacks));
    }

private:
    std::vector<CFRef<CFStringRef>> kept_;
    std::vector<const void*> keys_;
    std::vector<const void*> values_;
};

CFRef<CFArrayRef> listOfOne(const CFRef<CFDictionaryRef>& entry)
{
    const void* value = entry.get();
    return CFRef<CFArrayRef>::adopt(CFArrayCreate(kCFAllocatorDefault, &value, 1, &kCFTypeArrayCallBacks));
}

CFRef<CFArrayRef> subDevices(const AggregateDescription& description)
{
    Entries output;
    output.add(kAudioSubDeviceUIDKey, description.outputUID);
    return listOfOne(output.dictionary());
}

CFRef<CFArrayRef> subTaps(const AggregateDescription& description)
{
    Entries tap;
    tap.add(kAudioSubTapUIDKey, description.tapUUID);
    tap.add(kAudioSubTapDriftCompensationKey, kCFBooleanTrue);
    return listOfOne(tap.dictionary());
}

}  // namespace

CFRef<CFDictionaryRef> aggregateDictionary(const AggregateDescription& description)
{
    const auto devices = subDevices(description);
    const auto taps = subTaps(description);
    Entries entries;
    entries.add(kAudioAggregateDeviceNameKey, description.name);
    entries.add(kAudioAggregateDeviceUIDKey, description.uid);
    entries.add(kAudioAggregateDeviceMainSubDeviceKey, description.outputUID);
    entries.add(kAudioAggregateDeviceIsPrivateKey, kCFBooleanTrue);
    entries.add(kAudioAggregateDeviceIsStackedKey, kCFBooleanFalse);
    entries.add(kAudioAggregateDeviceTapAutoStartKey, kCFBooleanTrue);
    entries.add(kAudioAggregateDeviceSubDeviceListKey, devices.get());
    entries.add(kAudioAggregateDeviceTapListKey, taps.get());
    return entries.dictionary();
}

}  // namespace fadeloom
