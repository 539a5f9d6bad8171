// SPDX-License-Identifier: MIT
#include "engine/AppTap.h"

#include "engine/Uuid.h"
#include "hal/HAL.h"
#include "hal/OutputDevices.h"
#include "hal/StreamUsage.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace fadeloom {

namespace {

constexpr std::uint32_t sampleBits = 32;

bool isNonInterleaved(const AudioStreamBasicDescription& format)
{
    return (format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
}

bool hasFloatSamples(const AudioStreamBasicDescription& format)
{
    return format.formatID == kAudioFormatLinearPCM && (format.formatFlags & kAudioFormatFlagIsFloat) != 0
        && format.bitsPerChannel == sampleBits;
}

std::unexpected<TapError> failed(std::string step, AudioStatus status)
{
    return std::unexpected(TapError{.step = std::move(step), .status = status});
}

}  // namespace

std::expected<std::unique_ptr<AppTap>, TapError> AppTap::create(AudioHardware& hardware,
    std::vector<AudioObjectID> processIDs, std::string outputUID, AudioObjectID outputID,
    std::shared_ptr<TapParameters> parameters, const std::string& name)
{
    // The constructor is private, which std::make_unique cannot reach.
    std::unique_ptr<AppTap> tap(new AppTap(hardware, std::move(outputUID), outputID));
    if (auto built = tap->build(std::move(processIDs), std::move(parameters), name); !built)
        return std::unexpected(std::move(built.error()));  // Its destructor takes down what there is.
    return tap;
}

AppTap::AppTap(AudioHardware& hardware, std::string outputUID, AudioObjectID outputID)
    : hardware_(hardware)
    , outputUID_(std::move(outputUID))
    , outputID_(outputID)
{
}

AppTap::~AppTap()
{
    teardown();
}

std::expected<void, TapError> AppTap::build(
    std::vector<AudioObjectID> processIDs, std::shared_ptr<TapParameters> parameters, const std::string& name)
{
    description_ = {
        .processes = std::move(processIDs),
        .uuid = makeUuid(),
        .name = "Fadeloom " + name,
        .isPrivate = true,
        .muteBehavior = TapMuteBehavior::mutedWhenTapped,
    };
    const auto tap = hardware_.createProcessTap(description_);
    if (!tap)
        return failed("Create process tap", tap.error());
    tap_ = *tap;

    const auto format = readFormat();
    if (!format)
        return std::unexpected(format.error());

    const auto aggregate = hardware_.createAggregateDevice(aggregateDescription());
    if (!aggregate)
        return failed("Create aggregate device", aggregate.error());
    aggregate_ = *aggregate;

    const auto rate =
        HAL::value<double>(hardware_, aggregate_, {.selector = kAudioDevicePropertyNominalSampleRate});
    sampleRate_ = rate && *rate > 0 ? *rate : format->sampleRate;
    renderer_ = std::make_unique<Renderer>(std::move(parameters), layoutFor(*format));

    const auto proc = hardware_.createIOProc(aggregate_, *renderer_);
    if (!proc)
        return failed("Create IOProc", proc.error());
    proc_ = *proc;

    disableDeviceInputs();

    if (const auto status = hardware_.start(aggregate_, *proc_); status != kAudioHardwareNoError)
        return failed("Start device", status);
    return {};
}

std::expected<AudioStreamBasicDescription, TapError> AppTap::readFormat() const
{
    const auto format =
        HAL::value<AudioStreamBasicDescription>(hardware_, tap_, {.selector = kAudioTapPropertyFormat});
    if (!format || !hasFloatSamples(*format))
        return failed("Unsupported tap format", format ? static_cast<AudioStatus>(format->formatID) : 0);
    return *format;
}

AggregateDescription AppTap::aggregateDescription() const
{
    return {
        .name = description_.name,
        .uid = std::string(OutputDevices::ownUIDPrefix) + makeUuid(),
        .master = outputUID_,
        .isPrivate = true,
        .isStacked = false,
        .tapAutoStart = true,
        .subDevices = {outputUID_},
        .taps = {{.uid = description_.uuid, .drift = true}},
    };
}

RenderLayout AppTap::layoutFor(const AudioStreamBasicDescription& format) const
{
    return {
        .sampleRate = sampleRate_,
        .output = OutputDevices::stereoChannels(hardware_, outputID_),
        .tapBufferCount = isNonInterleaved(format) ? std::max<std::size_t>(format.channelsPerFrame, 1) : 1,
        .isTapInterleaved = !isNonInterleaved(format),
    };
}

void AppTap::disableDeviceInputs()
{
    constexpr auto input = kAudioObjectPropertyScopeInput;
    const std::size_t deviceInputs =
        HAL::getArray(hardware_, outputID_, kAudioDevicePropertyStreams, input).size();
    if (deviceInputs == 0)
        return;
    auto usage = StreamUsage::read(hardware_, aggregate_, *proc_, input);
    if (!usage || usage->streamCount() < 2)
        return;

    // The aggregate lists the device's streams first; the last one is the tap and stays on.
    const std::size_t disabled = std::min(usage->streamCount() - 1, deviceInputs);
    for (std::size_t stream = 0; stream < disabled; ++stream)
        usage->switchOff(stream);
    // When it is refused the device's microphone runs along, unheard.
    if (usage->write(hardware_, aggregate_, input) == kAudioHardwareNoError)
        disabledInputs_ = static_cast<int>(disabled);
}

bool AppTap::update(std::vector<AudioObjectID> processIDs)
{
    std::swap(description_.processes, processIDs);
    if (hardware_.describeProcessTap(tap_, description_) == kAudioHardwareNoError)
        return true;
    std::swap(description_.processes, processIDs);
    return false;
}

void AppTap::teardown()
{
    if (proc_) {
        hardware_.stop(aggregate_, *proc_);
        hardware_.destroyIOProc(aggregate_, *proc_);
        proc_.reset();
    }
    if (aggregate_ != kAudioObjectUnknown)
        hardware_.destroyAggregateDevice(std::exchange(aggregate_, kAudioObjectUnknown));
    if (tap_ != kAudioObjectUnknown)
        hardware_.destroyProcessTap(std::exchange(tap_, kAudioObjectUnknown));
    renderer_.reset();
}

}  // namespace fadeloom
