// SPDX-License-Identifier: MIT
#include "platform/macos/PropertyListener.h"

#include <utility>

namespace fadeloom {

std::expected<std::unique_ptr<PropertyListener>, OSStatus> PropertyListener::add(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::function<void()> listener)
{
    auto told = std::make_shared<Callback>(std::move(listener));
    std::unique_ptr<PropertyListener> added(new PropertyListener(object, address, std::move(told)));
    const OSStatus status = AudioObjectAddPropertyListenerBlock(
        object, &added->address_, dispatch_get_main_queue(), added->block_.get());
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    added->isAdded_ = true;
    return added;
}

PropertyListener::PropertyListener(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::shared_ptr<Callback> told)
    : object_(object)
    , address_(address)
    , callback_(told)
    , block_(^(UInt32, const AudioObjectPropertyAddress*) {
        const auto kept = told;  // The listener may end its own subscription, and with it this block.
        if (!kept->isOver)
            kept->listener();
    })
{
}

PropertyListener::~PropertyListener()
{
    callback_->isOver = true;
    if (isAdded_)
        AudioObjectRemovePropertyListenerBlock(object_, &address_, dispatch_get_main_queue(), block_.get());
}

}  // namespace fadeloom
