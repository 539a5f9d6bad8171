// SPDX-License-Identifier: MIT
#include "engine/Renderer.h"

#include "engine/PlainRender.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <utility>

namespace fadeloom {

namespace {

// Time constants in seconds.
constexpr double gainGlide = 0.02;
constexpr double duckGlide = 0.3;
constexpr double limiterRelease = 0.08;

constexpr float monoFoldDown = 0.5F;

// Older than any version, so that the first snapshot includes the coefficients.
constexpr std::int64_t noVersion = -1;

std::size_t framesIn(const AudioBuffer& buffer, std::size_t channels) noexcept
{
    return buffer.byteSize / (channels * sizeof(float));
}

// The number of frames that fit in every output buffer; a buffer without channels is ignored.
std::size_t cycleLength(AudioBuffers output) noexcept
{
    std::size_t frames = Renderer::maximumFrames;
    for (const auto& buffer : output) {
        if (buffer.channels != 0)
            frames = std::min(frames, framesIn(buffer, buffer.channels));
    }
    return frames;
}

// Writes every `stride`th sample.
void spread(const float* samples, std::size_t count, float* to, std::size_t stride) noexcept
{
    if (stride == 1) {
        std::memcpy(to, samples, count * sizeof(float));
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
        to[i * stride] = samples[i];
}

}  // namespace

Renderer::Renderer(
    std::shared_ptr<TapParameters> parameters, const TapFormat& layout, const RenderKernels* kernels)
    : parameters_(std::move(parameters))
    , layout_(layout)
    , snapshot_{.eqVersion = noVersion}
{
    if (kernels)
        fast_.emplace(*kernels);
    // If the settings are being written right now, the defaults are used for this one cycle: 1 for either gain.
    takeSnapshot();
    state_.gain = {.current = gainTarget(), .coefficient = onePoleCoefficient(layout.sampleRate, gainGlide)};
    state_.duck = {
        .current = snapshot_.duck, .coefficient = onePoleCoefficient(layout.sampleRate, duckGlide)};
    state_.limiter = {.reduction = 1, .release = onePoleCoefficient(layout.sampleRate, limiterRelease)};
}

Renderer::~Renderer()
{
    parameters_->recorder.release(this);
}

void Renderer::render(
    const CycleTime& time, AudioBuffers input, AudioBuffers output) noexcept FADELOOM_NONBLOCKING
{
    [[maybe_unused]] RealTimeSection section;
    takeSnapshot();
    const std::size_t frames = readTap(input, cycleLength(output));
    noticeFirstAudio(frames);
    record(time, frames);
    handBackPeak(process(frames));
    writeOutput(output, frames);
}

void Renderer::takeSnapshot() noexcept FADELOOM_NONBLOCKING
{
    const std::unique_lock guard(parameters_->lock, std::try_to_lock);
    if (!guard.owns_lock())
        return;
    if (parameters_->values.eqVersion != snapshot_.eqVersion)
        sections_ = parameters_->coefficients;
    snapshot_ = parameters_->values;
}

float Renderer::gainTarget() const noexcept FADELOOM_NONBLOCKING
{
    return snapshot_.muted ? 0.0F : snapshot_.volume;
}

std::size_t Renderer::readTap(AudioBuffers input, std::size_t atMost) noexcept FADELOOM_NONBLOCKING
{
    if (input.size() < layout_.tapBufferCount)
        return 0;
    const std::size_t first = input.size() - layout_.tapBufferCount;
    if (layout_.isTapInterleaved)
        return readInterleaved(input[first], atMost);
    // A tap with a single buffer feeds both sides from it.
    return readPlanar(input[first], input[std::min(input.size() - 1, first + 1)], atMost);
}

std::size_t Renderer::readInterleaved(
    const AudioBuffer& tap, std::size_t atMost) noexcept FADELOOM_NONBLOCKING
{
    const std::size_t channels = tap.channels;
    if (channels == 0 || tap.data == nullptr)
        return 0;
    const std::size_t frames = std::min(atMost, framesIn(tap, channels));
    const auto* samples = static_cast<const float*>(tap.data);
    const std::size_t rightOffset = channels >= 2 ? 1 : 0;
    for (std::size_t frame = 0; frame < frames; ++frame) {
        left_[frame] = samples[frame * channels];
        right_[frame] = samples[frame * channels + rightOffset];
    }
    return frames;
}

std::size_t Renderer::readPlanar(
    const AudioBuffer& left, const AudioBuffer& right, std::size_t atMost) noexcept FADELOOM_NONBLOCKING
{
    if (left.data == nullptr || right.data == nullptr)
        return 0;
    const std::size_t frames = std::min({atMost, framesIn(left, 1), framesIn(right, 1)});
    std::memcpy(left_.data(), left.data, frames * sizeof(float));
    std::memcpy(right_.data(), right.data, frames * sizeof(float));
    return frames;
}

void Renderer::noticeFirstAudio(std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    if (parameters_->audioSeen.load(std::memory_order_relaxed))
        return;
    const auto isHeard = [](float sample) { return finiteOrSilence(sample) != 0; };
    for (std::size_t frame = 0; frame < frames; ++frame) {
        if (isHeard(left_[frame]) || isHeard(right_[frame])) {
            parameters_->audioSeen.store(true, std::memory_order_relaxed);
            return;
        }
    }
}

// The app's output, before any processing.
void Renderer::record(const CycleTime& time, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    if (frames == 0 || !parameters_->recorder.isRecording())
        return;
    for (std::size_t frame = 0; frame < frames; ++frame) {
        interleaved_[2 * frame] = left_[frame];
        interleaved_[2 * frame + 1] = right_[frame];
    }
    parameters_->recorder.write(this, layout_.sampleRate, time, std::span(interleaved_).first(2 * frames));
}

float Renderer::process(std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    const RenderSettings settings{
        .gainTarget = gainTarget(),
        .duckTarget = snapshot_.duck,
        .isEqualized = snapshot_.eqEnabled,
        .preamp = snapshot_.preamp,
        .sections = sections_,
    };
    const auto left = std::span(left_).first(frames);
    const auto right = std::span(right_).first(frames);
    return fast_ ? fast_->render(state_, settings, left, right) : renderPlain(state_, settings, left, right);
}

void Renderer::handBackPeak(float blockPeak) noexcept FADELOOM_NONBLOCKING
{
    if (parameters_->peak.load(std::memory_order_relaxed) < blockPeak)
        parameters_->peak.store(blockPeak, std::memory_order_relaxed);
}

void Renderer::writeOutput(AudioBuffers output, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    if (layout_.output.left == layout_.output.right) {
        for (std::size_t frame = 0; frame < frames; ++frame)
            left_[frame] = (left_[frame] + right_[frame]) * monoFoldDown;
    }

    std::uint64_t firstChannel = 1;  // Wide enough for any channel count that buffers may claim.
    for (const auto& buffer : output) {
        if (buffer.data != nullptr) {
            std::memset(buffer.data, 0, buffer.byteSize);
            auto* samples = static_cast<float*>(buffer.data);
            const auto place = [&](const Scratch& source, std::uint64_t channel) {
                spread(source.data(), frames, samples + (channel - firstChannel), buffer.channels);
            };
            const auto holds = [&](std::uint64_t channel) {
                return channel >= firstChannel && channel - firstChannel < buffer.channels;
            };
            if (holds(layout_.output.left))
                place(left_, layout_.output.left);
            if (layout_.output.right != layout_.output.left && holds(layout_.output.right))
                place(right_, layout_.output.right);
        }
        firstChannel += buffer.channels;
    }
}

}  // namespace fadeloom
