// SPDX-License-Identifier: MIT
#include "platform/macos/AggregateDictionary.h"

#include "platform/macos/CFText.h"

#include <CoreAudio/CoreAudio.h>

#include <string>
#include <vector>

namespace fadeloom {
namespace {

CFTypeRef cfTruth(bool isTrue)
{
    return isTrue ? kCFBooleanTrue : kCFBooleanFalse;
}

/// A dictionary in the making: it keeps what its values need until it is made.
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

CFRef<CFArrayRef> cfList(const std::vector<CFRef<CFDictionaryRef>>& entries)
{
    std::vector<const void*> values;
    for (const auto& entry : entries)
        values.push_back(entry.get());
    return CFRef<CFArrayRef>::adopt(CFArrayCreate(
        kCFAllocatorDefault, values.data(), static_cast<CFIndex>(values.size()), &kCFTypeArrayCallBacks));
}

CFRef<CFArrayRef> subDevices(const AggregateDescription& description)
{
    std::vector<CFRef<CFDictionaryRef>> devices;
    for (const std::string& uid : description.subDevices) {
        Entries entries;
        entries.add(kAudioSubDeviceUIDKey, uid);
        devices.push_back(entries.dictionary());
    }
    return cfList(devices);
}

CFRef<CFArrayRef> subTaps(const AggregateDescription& description)
{
    std::vector<CFRef<CFDictionaryRef>> taps;
    for (const auto& tap : description.taps) {
        Entries entries;
        entries.add(kAudioSubTapUIDKey, tap.uid);
        entries.add(kAudioSubTapDriftCompensationKey, cfTruth(tap.drift));
        taps.push_back(entries.dictionary());
    }
    return cfList(taps);
}

}  // namespace

CFRef<CFDictionaryRef> aggregateDictionary(const AggregateDescription& description)
{
    const auto devices = subDevices(description);
    const auto taps = subTaps(description);
    Entries entries;
    entries.add(kAudioAggregateDeviceNameKey, description.name);
    entries.add(kAudioAggregateDeviceUIDKey, description.uid);
    entries.add(kAudioAggregateDeviceMainSubDeviceKey, description.master);
    entries.add(kAudioAggregateDeviceIsPrivateKey, cfTruth(description.isPrivate));
    entries.add(kAudioAggregateDeviceIsStackedKey, cfTruth(description.isStacked));
    entries.add(kAudioAggregateDeviceTapAutoStartKey, cfTruth(description.tapAutoStart));
    entries.add(kAudioAggregateDeviceSubDeviceListKey, devices.get());
    entries.add(kAudioAggregateDeviceTapListKey, taps.get());
    return entries.dictionary();
}

}  // namespace fadeloom
