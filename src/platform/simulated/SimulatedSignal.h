// SPDX-License-Identifier: MIT
// The output of a simulated process: an infinite stereo signal.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace fadeloom {

struct StereoFrame {
    float left = 0;
    float right = 0;

    friend bool operator==(const StereoFrame&, const StereoFrame&) = default;
};

/// A value type; the same frame number and rate always give the same samples.
class SimulatedSignal {
public:
    [[nodiscard]] static SimulatedSignal silence() { return constant(0); }
    /// The same sample on both channels forever.
    [[nodiscard]] static SimulatedSignal constant(float sample) { return constant(sample, sample); }
    [[nodiscard]] static SimulatedSignal constant(float left, float right);
    /// `frequency`: hertz; `amplitude`: linear. Starts at 0.
    [[nodiscard]] static SimulatedSignal sine(double frequency, float amplitude);
    /// These frames once, then silence.
    [[nodiscard]] static SimulatedSignal samples(std::vector<StereoFrame> frames);

    /// The samples of frame `index`, counted from when the process started playing. `sampleRate`: hertz.
    [[nodiscard]] StereoFrame at(std::uint64_t index, double sampleRate) const
    {
        return at_(index, sampleRate);
    }

private:
    using Function = std::function<StereoFrame(std::uint64_t, double)>;

    explicit SimulatedSignal(Function at)
        : at_(std::move(at))
    {
    }

    Function at_;
};

}  // namespace fadeloom
