// SPDX-License-Identifier: MIT
// An independent implementation of the renderer, written only from its description: slow, simple, and the reference for
// it, bit for bit.
#pragma once

#include "engine/EqualizerDesign.h"
#include "engine/TapParameters.h"
#include "tests/engine/CycleBuffers.h"

#include <cmath>
#include <vector>

namespace fadeloom {

class ReferenceRenderer {
public:
    struct Layout {
        long leftChannel = 1;
        long rightChannel = 2;
        long tapBufferCount = 1;
        bool isInterleaved = true;
        double sampleRate = 48000;
    };

    /// The initial settings.
    ReferenceRenderer(const TapParameters::Values& values, const Layout& layout)
        : layout_(layout)
        , gain_(values.muted ? 0 : values.volume)
        , duck_(values.duck)
        , gainStep_(float(1 - std::exp(-1 / (layout.sampleRate * 0.02))))
        , duckStep_(float(1 - std::exp(-1 / (layout.sampleRate * 0.3))))
        , release_(float(1 - std::exp(-1 / (layout.sampleRate * 0.08))))
    {
    }

    float blockPeak = 0;  // Of the last cycle.
    bool audioSeen = false;

    /// `values` and `sections`: as seen by the cycle.
    void cycle(const TapParameters::Values& values, const EQCoefficients& sections, const CycleBuffers& input,
        CycleBuffers& output)
    {
        readTap(input, cycleLength(output));
        blockPeak = 0;
        for (std::size_t i = 0; i < left_.size(); ++i) {
            if (left_[i] != 0 || right_[i] != 0)
                audioSeen = true;
            frame(values, sections, left_[i], right_[i]);
        }
        write(output);
    }

private:
    static long framesOf(const AudioBuffer& buffer)
    {
        return long(buffer.byteSize) / (long(buffer.channels) * 4);
    }

    static long cycleLength(const CycleBuffers& output)
    {
        long frames = 8192;
        for (const auto& buffer : output.view())
            frames = buffer.channels == 0 ? frames : std::min(frames, framesOf(buffer));
        return frames;
    }

    void readTap(const CycleBuffers& input, long frames)
    {
        left_.clear();
        right_.clear();
        const long count = long(input.size());
        if (count < layout_.tapBufferCount)
            return;
        const long first = count - layout_.tapBufferCount;
        const long second = layout_.isInterleaved ? first : std::min(count - 1, first + 1);
        for (const long buffer : {first, second}) {
            const auto& tap = input.view()[std::size_t(buffer)];
            if (tap.data == nullptr || tap.channels == 0)
                return;
            frames = std::min(frames, layout_.isInterleaved ? framesOf(tap) : long(tap.byteSize) / 4);
        }
        for (long i = 0; i < frames; ++i) {
            const auto stride = layout_.isInterleaved ? input.view()[std::size_t(first)].channels : 1;
            const auto offset = layout_.isInterleaved && stride >= 2 ? 1U : 0U;
            left_.push_back(finite(input.samples(std::size_t(first))[std::size_t(i) * stride]));
            right_.push_back(finite(input.samples(std::size_t(second))[std::size_t(i) * stride + offset]));
        }
    }

    void frame(const TapParameters::Values& values, const EQCoefficients& sections, float& left, float& right)
    {
        if (values.eqEnabled) {
            left = filter(left * values.preamp, sections, leftMemory_);
            right = filter(right * values.preamp, sections, rightMemory_);
        }
        glide(gain_, values.muted ? 0 : values.volume, gainStep_);
        glide(duck_, values.duck, duckStep_);
        const float g = gain_ * duck_;
        left = left * g;
        right = right * g;
        const float p = magnitude(left, right);
        const float r = reduction_ + (1 - reduction_) * release_;
        if (r * p > 0.891F)
            reduction_ = 0.891F / p;
        else
            reduction_ = r;
        if (g > 1.0F || values.eqEnabled) {
            left = left * reduction_;
            right = right * reduction_;
        }
        blockPeak = std::max(blockPeak, magnitude(left, right));
    }

    static float filter(float sample, const EQCoefficients& sections, EQChannelState& memory)
    {
        double x = double(sample);
        for (std::size_t k = 0; k < 10; ++k) {
            const BiquadCoefficients c = sections[k];
            const double y = c.b0 * x + memory.z1[k];
            memory.z1[k] = memory.z2[k] + (c.b1 * x - c.a1 * y);
            memory.z2[k] = c.b2 * x - c.a2 * y;
            x = y;
        }
        if (std::fabs(x) < 1e-25)
            x = 0;
        return float(x);
    }

    static void glide(float& value, float target, float step)
    {
        value = value + (target - value) * step;
        if (std::fabs(target - value) < 0.0001F)
            value = target;
    }

    void write(CycleBuffers& output) const
    {
        long channel = 1;
        for (const auto& buffer : output.view()) {
            auto* samples = static_cast<float*>(buffer.data);
            for (std::size_t i = 0; samples != nullptr && i < buffer.byteSize / 4; ++i) {
                const long frameIndex = long(i) / long(buffer.channels);
                samples[i] = sampleOf(channel + long(i) % long(buffer.channels), std::size_t(frameIndex));
            }
            channel += long(buffer.channels);
        }
    }

    [[nodiscard]] float sampleOf(long channel, std::size_t i) const
    {
        if (i >= left_.size())
            return 0;
        if (layout_.leftChannel == layout_.rightChannel && channel == layout_.leftChannel)
            return (left_[i] + right_[i]) * 0.5F;
        return channel == layout_.leftChannel ? left_[i] : channel == layout_.rightChannel ? right_[i] : 0;
    }

    static float finite(float sample) { return std::isfinite(sample) ? sample : 0; }
    static float magnitude(float left, float right) { return std::max(std::fabs(left), std::fabs(right)); }

    Layout layout_;
    float gain_;
    float duck_;
    float reduction_ = 1;
    float gainStep_;
    float duckStep_;
    float release_;
    EQChannelState leftMemory_;
    EQChannelState rightMemory_;
    std::vector<float> left_;
    std::vector<float> right_;
};

}  // namespace fadeloom
