// SPDX-License-Identifier: MIT
#include "platform/macos/CoreAudioTap.h"

#include "platform/macos/AggregateDictionary.h"
#include "platform/macos/HAL.h"
#include "platform/macos/OutputDevices.h"
#include "platform/macos/PropertyListener.h"
#include "platform/macos/StreamUsage.h"
#include "platform/macos/Uuid.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace fadeloom {
namespace {

constexpr UInt32 sampleBits = 32;

// The audio system's buffers and ours have the same layout.
static_assert(sizeof(AudioBuffer) == sizeof(::AudioBuffer));
static_assert(offsetof(AudioBuffer, channels) == offsetof(::AudioBuffer, mNumberChannels));
static_assert(offsetof(AudioBuffer, byteSize) == offsetof(::AudioBuffer, mDataByteSize));
static_assert(offsetof(AudioBuffer, data) == offsetof(::AudioBuffer, mData));

AudioBuffers buffersOf(const AudioBufferList* list)
{
    if (list == nullptr)
        return {};
    return {reinterpret_cast<const AudioBuffer*>(list->mBuffers), list->mNumberBuffers};
}

bool isNonInterleaved(const AudioStreamBasicDescription& format)
{
    return (format.mFormatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
}

bool hasFloatSamples(const AudioStreamBasicDescription& format)
{
    return format.mFormatID == kAudioFormatLinearPCM && (format.mFormatFlags & kAudioFormatFlagIsFloat) != 0
        && format.mBitsPerChannel == sampleBits;
}

std::unexpected<TapError> failed(TapStep step, OSStatus status)
{
    return std::unexpected(TapError{.step = step, .status = status});
}

// The time of the input, which is the captured audio; if that is invalid, the time of the cycle itself.
CycleTime cycleTime(AudioObjectID clock, const AudioTimeStamp& input, const AudioTimeStamp& now) noexcept
{
    constexpr UInt32 needed = kAudioTimeStampSampleHostTimeValid;
    const AudioTimeStamp& time = (input.mFlags & needed) == needed ? input : now;
    return {.clock = clock,
        .frame = static_cast<std::int64_t>(time.mSampleTime),
        .host = HostTime(AudioConvertHostTimeToNanos(time.mHostTime))};
}

}  // namespace

std::expected<std::unique_ptr<CoreAudioTap>, TapError> CoreAudioTap::create(
    const TapRequest& request, const AudioIOProcFactory& makeIOProc, TapContext surroundings)
{
    // The constructor is private, so std::make_unique cannot call it.
    std::unique_ptr<CoreAudioTap> tap(new CoreAudioTap(request.output, surroundings));
    if (auto built = tap->build(request, makeIOProc); !built)
        return std::unexpected(std::move(built.error()));  // Its destructor tears down what exists.
    tap->watch();
    return tap;
}

CoreAudioTap::CoreAudioTap(OutputDevice output, TapContext surroundings)
    : output_(std::move(output))
    , context_(surroundings)
{
}

CoreAudioTap::~CoreAudioTap()
{
    if (proc_) {
        AudioDeviceStop(aggregate_, *proc_);
        AudioDeviceDestroyIOProcID(aggregate_, *proc_);
    }
    if (aggregate_ != kAudioObjectUnknown)
        AudioHardwareDestroyAggregateDevice(aggregate_);
    if (tap_ != kAudioObjectUnknown)
        ProcessTaps::destroy(tap_);
}

std::expected<void, TapError> CoreAudioTap::build(
    const TapRequest& request, const AudioIOProcFactory& makeIOProc)
{
    description_ = {.processes = request.processes, .uuid = makeUuid(), .name = "Fadeloom " + request.name};
    const auto tap = ProcessTaps::create(description_);
    if (!tap)
        return failed("Create process tap", tap.error());
    tap_ = *tap;

    const auto format = readFormat();
    if (!format)
        return std::unexpected(format.error());

    if (const auto status = createAggregate(); status != kAudioHardwareNoError)
        return failed("Create aggregate device", status);
    const auto rate = HAL::value<double>(aggregate_, HAL::address(kAudioDevicePropertyNominalSampleRate));
    sampleRate_ = rate && *rate > 0 ? *rate : format->mSampleRate;

    const auto layout = formatOf(*format);
    if (const auto status = createIOProc(makeIOProc(layout), layout.tapBufferCount);
        status != kAudioHardwareNoError)
        return failed("Create IOProc", status);
    if (auto disabled = disableDeviceInputs(); !disabled)
        return disabled;
    if (const auto status = AudioDeviceStart(aggregate_, *proc_); status != kAudioHardwareNoError)
        return failed("Start device", status);
    isRunning_ = true;
    return {};
}

std::expected<AudioStreamBasicDescription, TapError> CoreAudioTap::readFormat() const
{
    const auto format = HAL::value<AudioStreamBasicDescription>(tap_, HAL::address(kAudioTapPropertyFormat));
    if (!format || !hasFloatSamples(*format))
        return failed("Unsupported tap format", format ? static_cast<OSStatus>(format->mFormatID) : 0);
    return *format;
}

OSStatus CoreAudioTap::createAggregate()
{
    const auto dictionary = aggregateDictionary({
        .name = description_.name,
        .uid = std::string(OutputDevices::ownUIDPrefix) + makeUuid(),
        .outputUID = output_.uid,
        .tapUUID = description_.uuid,
    });
    AudioObjectID aggregate = kAudioObjectUnknown;
    const OSStatus status = AudioHardwareCreateAggregateDevice(dictionary.get(), &aggregate);
    if (status == kAudioHardwareNoError)
        aggregate_ = aggregate;
    return status;
}

TapFormat CoreAudioTap::formatOf(const AudioStreamBasicDescription& format) const
{
    return {
        .sampleRate = sampleRate_,
        .output = OutputDevices::stereoChannels(output_.id),
        .tapBufferCount = isNonInterleaved(format) ? std::max<std::size_t>(format.mChannelsPerFrame, 1) : 1,
        .isTapInterleaved = !isNonInterleaved(format),
    };
}

OSStatus CoreAudioTap::createIOProc(std::shared_ptr<AudioIOProc> proc, std::size_t tapBufferCount)
{
    // Without a queue the block runs directly on the device's IO thread. It is copied, along with the procedure, until
    // the audio system has destroyed it.
    AudioDeviceIOProcID created = nullptr;
    const auto clock = aggregate_;
    const auto silence = silence_;
    const OSStatus status = AudioDeviceCreateIOProcIDWithBlock(&created, aggregate_, nullptr,
        ^(const AudioTimeStamp* now, const AudioBufferList* input, const AudioTimeStamp* inputTime,
            AudioBufferList* output, const AudioTimeStamp*) {
            const AudioBuffers captured = buffersOf(input);
            silence->note(captured.last(std::min(tapBufferCount, captured.size())));
            proc->render(cycleTime(clock, *inputTime, *now), captured, buffersOf(output));
        });
    if (status == kAudioHardwareNoError)
        proc_ = created;
    return status;
}

// An active microphone would light its indicator and switch a headset to its low-quality mode; and the system
// terminates a program that opens one without a usage description.
std::expected<void, TapError> CoreAudioTap::disableDeviceInputs()
{
    constexpr auto input = kAudioObjectPropertyScopeInput;
    const std::size_t deviceInputs = HAL::getArray(output_.id, kAudioDevicePropertyStreams, input).size();
    if (deviceInputs == 0)
        return {};
    const auto refused = [&](OSStatus status) {
        return std::unexpected(TapError{.step = "Switch off the microphone",
            .status = status,
            .reason = "the one of %1 would listen while apps play there",
            .detail = output_.name});
    };
    auto usage = StreamUsage::read(aggregate_, *proc_, input);
    if (!usage)
        return refused(kAudioHardwareUnspecifiedError);
    if (usage->streamCount() < 2)
        return {};  // The tap's, and none of the device's.

    // The aggregate lists the device's streams first; the last one is the tap and remains enabled.
    const std::size_t disabled = std::min(usage->streamCount() - 1, deviceInputs);
    for (std::size_t stream = 0; stream < disabled; ++stream)
        usage->switchOff(stream);
    if (const OSStatus status = usage->write(aggregate_, input); status != kAudioHardwareNoError)
        return refused(status);
    disabledInputs_ = static_cast<int>(disabled);
    return {};
}

void CoreAudioTap::watch()
{
    const auto isAlive = HAL::address(kAudioDevicePropertyDeviceIsAlive);
    auto listener = PropertyListener::add(output_.id, isAlive, [this, isAlive] {
        if (HAL::value<std::uint32_t>(output_.id, isAlive).value_or(0) == 0)
            isRunning_ = false;
    });
    if (listener)
        deviceListener_ = std::move(*listener);
    restarts_ = context_.restarts.add([this] { abandon(); });
    checks_ = context_.silentTaps.whenChecking([this] { checkForSilence(); });
}

void CoreAudioTap::checkForSilence()
{
    auto& taps = context_.silentTaps;
    const SilentTaps::Key key{description_.processes, output_.uid};
    const std::uint64_t silent = silence_->silentFrames();
    if (silent < silentWhilePaused_)
        silentWhilePaused_ = 0;
    if (silence_->hasHadSound())
        taps.soundArrived(key);
    if (!taps.isAnyPlaying(description_.processes))
        silentWhilePaused_ = silent;
    if (!isRunning_)
        return;
    const auto tolerance = static_cast<double>(taps.toleratedSilence(key).count());
    if (static_cast<double>(silent - silentWhilePaused_) < tolerance * sampleRate_)
        return;
    taps.tapReplaced(key);
    isRunning_ = false;
}

// Our ids may now belong to other objects.
void CoreAudioTap::abandon()
{
    isRunning_ = false;
    if (proc_) {
        AudioDeviceStop(aggregate_, *proc_);
        AudioDeviceDestroyIOProcID(aggregate_, *proc_);
        proc_.reset();
    }
    aggregate_ = kAudioObjectUnknown;
    tap_ = kAudioObjectUnknown;
    deviceListener_.reset();
}

bool CoreAudioTap::setProcesses(const std::vector<AudioProcessID>& processes)
{
    auto description = description_;
    description.processes = processes;
    if (ProcessTaps::describe(tap_, description) != kAudioHardwareNoError)
        return false;
    description_ = std::move(description);
    return true;
}

}  // namespace fadeloom
