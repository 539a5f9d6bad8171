// SPDX-License-Identifier: MIT
// Renders one app's audio, from its tap to the stereo pair of its output device, in each IO cycle.
#pragma once

#include "base/RealTime.h"
#include "engine/RenderState.h"
#include "engine/TapParameters.h"
#include "engine/kernels/FastRender.h"
#include "engine/kernels/RenderChoice.h"
#include "platform/ProcessTap.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>

namespace fadeloom {

/// Created and destroyed on the main thread, run on the IO thread. Everything it needs in a cycle is preallocated.
/// Missing or malformed buffers give a silent cycle; nothing here fails.
class Renderer final : public AudioIOProc {
public:
    /// Longer cycles are truncated to this many frames.
    static constexpr std::size_t maximumFrames = 8192;

    /// Starts at the gain in `parameters`, without fading in. The block is shared: the app's next tap reuses it, and an
    /// IO thread may still read it while its owner releases it. `kernels`: those of the fast implementation; null for
    /// the plain one.
    Renderer(std::shared_ptr<TapParameters> parameters, const TapFormat& layout,
        const RenderKernels* kernels = chosenKernels());
    ~Renderer() override;
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    void render(const CycleTime& time, AudioBuffers input,
        AudioBuffers output) noexcept FADELOOM_NONBLOCKING override;

private:
    using Scratch = std::array<float, maximumFrames>;

    /// Copies the settings, unless they are being written right now.
    void takeSnapshot() noexcept FADELOOM_NONBLOCKING;
    [[nodiscard]] float gainTarget() const noexcept FADELOOM_NONBLOCKING;
    /// Copies the tap's audio into the scratch buffers; returns the number of frames, at most `atMost`.
    [[nodiscard]] std::size_t readTap(AudioBuffers input, std::size_t atMost) noexcept FADELOOM_NONBLOCKING;
    [[nodiscard]] std::size_t readInterleaved(
        const AudioBuffer& tap, std::size_t atMost) noexcept FADELOOM_NONBLOCKING;
    [[nodiscard]] std::size_t readPlanar(
        const AudioBuffer& left, const AudioBuffer& right, std::size_t atMost) noexcept FADELOOM_NONBLOCKING;
    void noticeFirstAudio(std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    void record(const CycleTime& time, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Equalizer, gain and limiter, in the scratch buffers; returns the maximum magnitude.
    [[nodiscard]] float process(std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    void handBackPeak(float blockPeak) noexcept FADELOOM_NONBLOCKING;
    void writeOutput(AudioBuffers output, std::size_t frames) noexcept FADELOOM_NONBLOCKING;

    const std::shared_ptr<TapParameters> parameters_;
    const TapFormat layout_;
    TapParameters::Values snapshot_;
    EQCoefficients sections_{};
    RenderState state_;
    std::optional<FastRender> fast_;
    Scratch left_{};
    Scratch right_{};
    std::array<float, 2 * maximumFrames> interleaved_{};
};

}  // namespace fadeloom
