// SPDX-License-Identifier: MIT
#include "platform/pipewire/Park.h"

#include <pipewire/keys.h>
#include <pipewire/properties.h>
#include <pipewire/stream.h>
#include <spa/param/audio/format-utils.h>

#include <array>
#include <cstdint>

namespace fadeloom {

Park::Park(pw_core* core, std::string name, std::function<void()> changed)
    : name_(std::move(name))
    , changed_(std::move(changed))
    , listener_(std::make_unique<spa_hook>())
{
    // The priorities keep the park from ever being selected as default device. Nothing about it must be remembered:
    // newer session managers have a property for that, older ones skip nodes whose volume belongs to a device's route;
    // media.name is constant in case one remembers it anyway. No suspending: WirePlumber 0.4 crashes if a node is
    // removed while its suspend timeout is running.
    auto* properties = pw_properties_new(PW_KEY_MEDIA_CLASS, "Audio/Sink/Internal", PW_KEY_NODE_NAME,
        name_.c_str(), PW_KEY_MEDIA_NAME, "Fadeloom", PW_KEY_NODE_VIRTUAL, "true", PW_KEY_NODE_PASSIVE,
        "true", PW_KEY_PRIORITY_SESSION, "-100", PW_KEY_PRIORITY_DRIVER, "0", PW_KEY_NODE_WANT_DRIVER,
        "false", "state.restore-props", "false", "state.restore-target", "false", "device.routes", "1",
        "session.suspend-timeout-seconds", "0", nullptr);
    stream_ = pw_stream_new(core, name_.c_str(), properties);
    if (!stream_)
        return;

    static constexpr pw_stream_events events{
        .version = PW_VERSION_STREAM_EVENTS,
        .state_changed = [](void* self, pw_stream_state, pw_stream_state,
                             const char*) { static_cast<Park*>(self)->changed_(); },
        .process = &Park::onProcess,
    };
    *listener_ = {};
    pw_stream_add_listener(stream_, listener_.get(), &events, this);

    // Stereo: the session manager then makes every parked stream downmix to two channels.
    spa_audio_info_raw info{};
    info.format = SPA_AUDIO_FORMAT_F32P;
    info.channels = 2;
    info.position[0] = SPA_AUDIO_CHANNEL_FL;
    info.position[1] = SPA_AUDIO_CHANNEL_FR;
    std::array<std::uint8_t, 1024> memory{};
    spa_pod_builder builder{};
    spa_pod_builder_init(&builder, memory.data(), static_cast<std::uint32_t>(memory.size()));
    std::array<const spa_pod*, 1> params{spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &info)};
    pw_stream_connect(stream_, PW_DIRECTION_INPUT, PW_ID_ANY,
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS), params.data(),
        static_cast<std::uint32_t>(params.size()));
}

Park::~Park()
{
    if (stream_)
        pw_stream_destroy(stream_);
}

std::optional<GraphID> Park::nodeID() const
{
    if (!stream_)
        return std::nullopt;
    const auto state = pw_stream_get_state(stream_, nullptr);
    const auto id = pw_stream_get_node_id(stream_);
    if ((state != PW_STREAM_STATE_PAUSED && state != PW_STREAM_STATE_STREAMING) || id == SPA_ID_INVALID)
        return std::nullopt;
    return id;
}

void Park::onProcess(void* self)
{
    auto* stream = static_cast<Park*>(self)->stream_;
    while (auto* buffer = pw_stream_dequeue_buffer(stream))
        pw_stream_queue_buffer(stream, buffer);
}

}  // namespace fadeloom
