// SPDX-License-Identifier: MIT
// A renderer driven in its own cycles: buffers, settings, and a recording that nobody reads.
#pragma once

#include "engine/Renderer.h"
#include "engine/TapParameters.h"
#include "engine/kernels/RenderChoice.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace fadeloom {

class CycleStage {
public:
    struct Setting {
        bool isPlanar = false;  // Both tap and device; otherwise both are interleaved.
        bool isEqualized = false;
        bool isRecorded = false;
        std::size_t frames = 512;
    };

    /// `kernels`: null for the plain implementation.
    CycleStage(const Setting& setting, const RenderKernels* kernels)
        : setting_(setting)
        , samples_(4 * setting.frames)
    {
        for (std::size_t i = 0; i < 2 * setting.frames; ++i)
            samples_[i] = 0.01F * std::sin(0.05F * static_cast<float>(i));
        parameters_->values.eqEnabled = setting.isEqualized;
        if (setting.isRecorded)
            parameters_->recorder.set(lanes_);
        parameters_->setEQ(eqCoefficients(std::array<float, 10>{6, -4, 3, -2, 7, -6, 4, 2, -3, 5}, 48000));
        const TapFormat layout{
            .output = {1, 2},
            .tapBufferCount = setting.isPlanar ? 2U : 1U,
            .isTapInterleaved = !setting.isPlanar,
        };
        renderer_ = std::make_unique<Renderer>(parameters_, layout, kernels);
    }

    void cycle()
    {
        // Drained as on the main thread, so that there is always room.
        if (setting_.isRecorded && ++cyclesWaiting_ == 100) {
            lanes_->drain([](const CycleTime&, std::span<const float>) { });
            cyclesWaiting_ = 0;
        }
        const auto size = static_cast<std::uint32_t>(setting_.frames * sizeof(float));
        if (setting_.isPlanar) {
            const std::array buffers{AudioBuffer{1, size, at(0)}, AudioBuffer{1, size, at(1)},
                AudioBuffer{1, size, at(2)}, AudioBuffer{1, size, at(3)}};
            renderer_->render({}, AudioBuffers(buffers).first(2), AudioBuffers(buffers).last(2));
        } else {
            const std::array buffers{AudioBuffer{2, 2 * size, at(0)}, AudioBuffer{2, 2 * size, at(2)}};
            renderer_->render({}, AudioBuffers(buffers).first(1), AudioBuffers(buffers).last(1));
        }
    }

    [[nodiscard]] std::size_t frames() const { return setting_.frames; }

private:
    float* at(std::size_t side) { return samples_.data() + side * setting_.frames; }

    Setting setting_;
    std::shared_ptr<RecordingLanes> lanes_ = std::make_shared<RecordingLanes>(48000);
    std::size_t cyclesWaiting_ = 0;
    std::shared_ptr<TapParameters> parameters_ = std::make_shared<TapParameters>();
    std::vector<float> samples_;  // Two channels in, two channels out.
    std::unique_ptr<Renderer> renderer_;
};

}  // namespace fadeloom
