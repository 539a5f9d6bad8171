// SPDX-License-Identifier: MIT
// A random walk through possible inputs and settings, for both implementations of the render path.
//
// It is one walk, not many calls: each call starts from the state that the previous one left.
#pragma once

#include "engine/EqualizerDesign.h"
#include "tests/engine/kernels/RenderForms.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace fadeloom {

class RenderWalk {
public:
    RenderWalk(const RenderKernels& kernels, std::uint64_t seed)
        : random_(seed * 0x9E3779B97F4A7C15 + 1)
        , sampleRate_(std::array{8000.0, 44100.0, 48000.0, 96000.0, 192000.0}[upTo(5) - 1])
        , callsBetweenChanges_(std::array<std::size_t, 3>{3, 30, 300}[upTo(3) - 1])
        , forms_(kernels, start())
    {
    }

    /// Continues for about this many frames. Reports where the implementations differ, if they do.
    [[nodiscard]] std::optional<std::string> walk(std::uint64_t frames)
    {
        for (const std::uint64_t end = frames_ + frames; frames_ < end; ++calls_) {
            chooseStep();
            fill();
            frames_ += block_.left.size();
            if (auto difference = forms_.render(settings(), block_))
                return "call " + std::to_string(calls_) + ", frame " + std::to_string(frames_) + ": "
                    + *difference;
        }
        return std::nullopt;
    }

private:
    enum class Sound { silence, zeros, loud, quiet, inaudible, anyExponent, notFinite, huge };
    static constexpr unsigned soundCount = 8;

    std::uint64_t next()
    {
        random_ ^= random_ << 13;
        random_ ^= random_ >> 7;
        random_ ^= random_ << 17;
        return random_;
    }
    std::size_t upTo(std::size_t most) { return 1 + (next() >> 11) % most; }
    bool oneIn(std::size_t n) { return upTo(n) == 1; }
    float between(float low, float high)
    {
        return low + (high - low) * static_cast<float>(next() >> 40) * 0x1p-24F;
    }

    // The time constants of the renderer, and faster ones, so that gains and limiter settle now and then.
    RenderState start()
    {
        const double speed = std::array{1.0, 10.0, 100.0}[upTo(3) - 1];
        RenderState state;
        state.gain = {.current = between(0, 2), .coefficient = onePoleCoefficient(sampleRate_, 0.02 / speed)};
        state.duck = {.current = between(0, 1), .coefficient = onePoleCoefficient(sampleRate_, 0.3 / speed)};
        state.limiter = {.reduction = 1, .release = onePoleCoefficient(sampleRate_, 0.08 / speed)};
        return state;
    }

    RenderSettings settings() const
    {
        return {
            .gainTarget = gainTarget_,
            .duckTarget = duckTarget_,
            .isEqualized = isEqualized_,
            .preamp = preamp_,
            .sections = sections_,
        };
    }

    // Known corner cases are chosen as a whole, the rest is random.
    void chooseStep()
    {
        if (oneIn(callsBetweenChanges_))
            changeTargets();
        if (oneIn(3))
            sound_ = static_cast<Sound>(upTo(soundCount) - 1);
        length_ = oneIn(2) ? upTo(30) : upTo(1100);
        if (scriptLength_ == 0 && oneIn(20)) {
            script_ = oneIn(2) ? Script::changeInSilence : Script::changeInShortBlock;
            scriptLength_ = 3;
        }
        if (scriptLength_ > 0)
            followScript();
        else if (oneIn(callsBetweenChanges_))
            changeSections();
        else if (quietCalls_ > 0 || oneIn(300))
            sound_ = Sound::silence;
        quietCalls_ = quietCalls_ > 0 ? quietCalls_ - 1 : oneIn(400) ? 100 : 0;
    }

    enum class Script { changeInSilence, changeInShortBlock };

    void followScript()
    {
        const int place = 3 - scriptLength_--;
        if (place == 0)
            changeSections();
        if (script_ == Script::changeInSilence)
            sound_ = place == 1 ? Sound::silence : Sound::loud;
        else
            length_ = std::array<std::size_t, 3>{64, 3, 512}[static_cast<std::size_t>(place)];
    }

    void changeTargets()
    {
        gainTarget_ = oneIn(3) ? 1 : oneIn(4) ? 0 : between(0, 2);
        duckTarget_ = oneIn(2) ? 1 : between(0, 1);
        preamp_ = oneIn(3) ? 1 : between(0, 4);
        isEqualized_ = !oneIn(4);
    }

    void changeSections()
    {
        const auto kind = upTo(4);
        if (kind == 1) {
            float& gain = gains_[upTo(gains_.size()) - 1];
            gain = gain == 0 ? between(-12, 12) : 0;
        } else {
            const std::size_t flatOnes = upTo(11) - 1;
            for (std::size_t i = 0; i < gains_.size(); ++i)
                gains_[i] = kind == 2 || upTo(10) > flatOnes ? between(-12, 12) : 0;
        }
        sections_ = eqCoefficients(gains_, sampleRate_);
    }

    void fill()
    {
        for (auto* side : {&block_.left, &block_.right}) {
            side->resize(length_);
            for (float& sample : *side)
                sample = nextSample();
        }
    }

    float nextSample()
    {
        constexpr float infinity = std::numeric_limits<float>::infinity();
        switch (sound_) {
        case Sound::silence:
            return 0;
        case Sound::zeros:
            return oneIn(2) ? 0.0F : -0.0F;
        case Sound::loud:
            return between(-1.2F, 1.2F);
        case Sound::quiet:
            return between(-0.01F, 0.01F);
        case Sound::inaudible:
            return between(-1e-24F, 1e-24F);
        case Sound::anyExponent:  // 1e-45 to 16: any sign and fraction, exponents from denormal to 2^3.
            return std::ldexp(between(-2, 2), 3 - static_cast<int>(upTo(153)));
        case Sound::notFinite:
            return !oneIn(10) ? between(-1, 1)
                : oneIn(2)    ? std::numeric_limits<float>::quiet_NaN()
                : oneIn(2)    ? infinity
                              : -infinity;
        case Sound::huge:
            return oneIn(3) ? between(-1, 1) * std::numeric_limits<float>::max() : between(-1, 1);
        }
        return 0;
    }

    std::uint64_t random_;
    double sampleRate_;
    std::size_t callsBetweenChanges_;
    RenderForms forms_;
    float gainTarget_ = 1;
    float duckTarget_ = 1;
    float preamp_ = 1;
    bool isEqualized_ = true;
    std::array<float, eqBandCount> gains_{};
    EQCoefficients sections_{};
    Sound sound_ = Sound::loud;
    std::size_t length_ = 1;
    Script script_ = Script::changeInSilence;
    int scriptLength_ = 0;
    int quietCalls_ = 0;
    StereoBlock block_;
    std::uint64_t frames_ = 0;
    std::uint64_t calls_ = 0;
};

}  // namespace fadeloom
