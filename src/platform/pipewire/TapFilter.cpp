// SPDX-License-Identifier: MIT
#include "platform/pipewire/TapFilter.h"

#include "base/RealTime.h"

#include <pipewire/filter.h>
#include <pipewire/keys.h>
#include <pipewire/properties.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace fadeloom {

namespace {

const char* channelName(int index)
{
    return index == 0 ? "FL" : "FR";
}

CycleTime timeOf(const spa_io_clock& clock) noexcept
{
    return {
        .clock = clock.id, .frame = static_cast<std::int64_t>(clock.position), .host = HostTime(clock.nsec)};
}

}  // namespace

TapFilter::TapFilter(pw_core* core, const std::string& name, const DeviceLayout& layout,
    std::shared_ptr<AudioIOProc> proc, std::function<void()> changed)
    : layout_(layout)
    , outputCount_(layout.left == layout.right ? 1 : 2)
    , changed_(std::move(changed))
    , listener_(std::make_unique<spa_hook>())
    , sharedProc_(std::move(proc))
    , proc_(sharedProc_.get())
{
    if (layout_.channels.size() > maximumChannels)
        layout_.channels.resize(maximumChannels);
    if (!connect(core, name) && filter_) {
        pw_filter_destroy(filter_);
        filter_ = nullptr;
    }
}

TapFilter::~TapFilter()
{
    stopRendering();
    if (filter_)
        pw_filter_destroy(filter_);
}

bool TapFilter::connect(pw_core* core, const std::string& name)
{
    // No media.class and no node.latency: the former would list the node in mixers, the latter would shorten
    // everybody's cycles.
    auto* properties = pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Filter",
        PW_KEY_MEDIA_ROLE, "DSP", PW_KEY_NODE_NAME, name.c_str(), PW_KEY_NODE_VIRTUAL, "true",
        PW_KEY_NODE_PASSIVE, "true", nullptr);
    filter_ = pw_filter_new(core, name.c_str(), properties);
    if (!filter_)
        return false;

    static constexpr pw_filter_events events{
        .version = PW_VERSION_FILTER_EVENTS,
        .state_changed = [](void* self, pw_filter_state, pw_filter_state,
                             const char*) { static_cast<TapFilter*>(self)->changed_(); },
        .process = &TapFilter::onProcess,
    };
    *listener_ = {};
    pw_filter_add_listener(filter_, listener_.get(), &events, this);

    const auto addPort = [&](spa_direction direction, const std::string& portName, const char* channel) {
        auto* port = pw_properties_new(PW_KEY_FORMAT_DSP, "32 bit float mono audio", PW_KEY_PORT_NAME,
            portName.c_str(), PW_KEY_AUDIO_CHANNEL, channel, nullptr);
        return pw_filter_add_port(filter_, direction, PW_FILTER_PORT_FLAG_MAP_BUFFERS, 0, port, nullptr, 0);
    };
    for (int i = 0; i < 2; ++i)
        inputPorts_[static_cast<std::size_t>(i)] =
            addPort(PW_DIRECTION_INPUT, std::string{"input_"} + channelName(i), channelName(i));
    for (int i = 0; i < outputCount_; ++i)
        outputPorts_[static_cast<std::size_t>(i)] = addPort(PW_DIRECTION_OUTPUT,
            std::string{"output_"} + channelName(i), outputCount_ == 1 ? "MONO" : channelName(i));
    const bool hasPorts =
        inputPorts_[0] && inputPorts_[1] && outputPorts_[0] && (outputCount_ == 1 || outputPorts_[1]);

    return hasPorts && pw_filter_connect(filter_, PW_FILTER_FLAG_RT_PROCESS, nullptr, 0) == 0;
}

std::optional<GraphID> TapFilter::nodeID() const
{
    const auto id = filter_ ? pw_filter_get_node_id(filter_) : SPA_ID_INVALID;
    return id == SPA_ID_INVALID ? std::nullopt : std::optional{id};
}

void TapFilter::stopRendering()
{
    proc_.store(nullptr);
    while (isInCycle_.load())
        std::this_thread::sleep_for(std::chrono::microseconds(50));
}

void TapFilter::onProcess(void* self, spa_io_position* position)
{
    if (position)
        static_cast<TapFilter*>(self)->process(*position);
}

void TapFilter::process(const spa_io_position& position) noexcept FADELOOM_NONBLOCKING
{
    const auto frames =
        static_cast<std::uint32_t>(std::min<std::uint64_t>(position.clock.duration, maximumFrames));
    rate_.store(position.clock.rate.denom, std::memory_order_relaxed);

    Sides inputs{};
    Sides outputs{};
    for (std::size_t i = 0; i < 2; ++i) {
        inputs[i] = static_cast<float*>(pw_filter_get_dsp_buffer(inputPorts_[i], frames));
        if (!inputs[i])
            inputs[i] = silence_.data();  // Not linked.
        if (outputPorts_[i])
            outputs[i] = static_cast<float*>(pw_filter_get_dsp_buffer(outputPorts_[i], frames));
    }

    [[maybe_unused]] const RealTimeSection section;
    isInCycle_.store(true);
    auto* proc = proc_.load();
    if (proc)
        renderThrough(*proc, timeOf(position.clock), inputs, outputs, frames);
    isInCycle_.store(false);

    const bool isPassingThrough = !proc && isPassingThrough_.load(std::memory_order_relaxed);
    if (isPassingThrough)
        playThrough(inputs, outputs, frames);
    if (!isGateOpen_.load(std::memory_order_relaxed) || (!proc && !isPassingThrough)) {
        for (auto* output : outputs) {
            if (output)
                std::fill_n(output, frames, 0.0F);
        }
    }
}

void TapFilter::renderThrough(AudioIOProc& proc, const CycleTime& time, const Sides& inputs,
    const Sides& outputs, std::uint32_t frames) noexcept FADELOOM_NONBLOCKING
{
    const auto bytes = static_cast<std::uint32_t>(frames * sizeof(float));
    const std::array<AudioBuffer, 2> inputBuffers{
        AudioBuffer{1, bytes, inputs[0]},
        AudioBuffer{1, bytes, inputs[1]},
    };
    // The procedure sees all channels of the device; only those of the stereo pair have a buffer.
    const auto channels = layout_.channels.size();
    for (std::size_t channel = 0; channel < channels; ++channel) {
        void* data = nullptr;
        if (channel + 1 == layout_.left)
            data = outputs[0];
        else if (channel + 1 == layout_.right)
            data = outputs[1];
        outputBuffers_[channel] = {1, bytes, data};
    }
    proc.render(time, inputBuffers, {outputBuffers_.data(), channels});
}

void TapFilter::playThrough(
    const Sides& inputs, const Sides& outputs, std::uint32_t frames) const noexcept FADELOOM_NONBLOCKING
{
    if (outputCount_ == 1) {
        for (std::uint32_t i = 0; outputs[0] && i < frames; ++i)
            outputs[0][i] = (inputs[0][i] + inputs[1][i]) * 0.5F;
        return;
    }
    for (std::size_t side = 0; side < 2; ++side) {
        if (outputs[side])
            std::copy_n(inputs[side], frames, outputs[side]);
    }
}

}  // namespace fadeloom
