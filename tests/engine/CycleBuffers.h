// SPDX-License-Identifier: MIT
// The buffers of one direction of an IO cycle, with their memory.
#pragma once

#include "platform/AudioBuffers.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <utility>
#include <vector>

namespace fadeloom {

class CycleBuffers {
public:
    /// Adds a buffer of `channels` interleaved channels, filled with one value.
    CycleBuffers& add(std::uint32_t channels, std::size_t frames, float value = 0)
    {
        return add(channels, std::vector<float>(channels * frames, value));
    }
    /// Adds a buffer with these interleaved samples.
    CycleBuffers& add(std::uint32_t channels, std::vector<float> samples)
    {
        auto& kept = samples_.emplace_back(std::move(samples));
        buffers_.push_back({
            .channels = channels,
            .byteSize = static_cast<std::uint32_t>(kept.size() * sizeof(float)),
            .data = kept.data(),
        });
        return *this;
    }
    /// Adds a buffer with a size but without memory.
    CycleBuffers& addNull(std::uint32_t channels, std::size_t frames)
    {
        samples_.emplace_back();
        buffers_.push_back({.channels = channels,
            .byteSize = static_cast<std::uint32_t>(channels * frames * sizeof(float))});
        return *this;
    }

    [[nodiscard]] AudioBuffers view() const { return buffers_; }
    [[nodiscard]] const std::vector<float>& samples(std::size_t buffer) const { return samples_[buffer]; }
    [[nodiscard]] std::size_t size() const { return buffers_.size(); }

    /// The samples of one channel of one buffer, both zero-based.
    [[nodiscard]] std::vector<float> channel(std::size_t buffer, std::size_t channel) const
    {
        std::vector<float> result;
        for (std::size_t i = channel; i < samples_[buffer].size(); i += buffers_[buffer].channels)
            result.push_back(samples_[buffer][i]);
        return result;
    }

private:
    std::deque<std::vector<float>> samples_;  // A deque keeps its elements' addresses stable.
    std::vector<AudioBuffer> buffers_;
};

}  // namespace fadeloom
