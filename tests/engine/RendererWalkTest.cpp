// SPDX-License-Identifier: MIT
// Long random walks: however settings change between cycles, and however audio is split into cycles and laid out in
// buffers, every implementation of the renderer gives the reference's bits.
#include "engine/Renderer.h"

#include "engine/kernels/RenderChoice.h"
#include "tests/engine/CycleBuffers.h"
#include "tests/engine/ReferenceRenderer.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <random>
#include <vector>

namespace fadeloom {
namespace {

/// One layout of input and output.
struct Scene {
    const char* name;
    ReferenceRenderer::Layout layout;
    std::vector<std::uint32_t> inputChannels;  // Per buffer; the tap's are the last.
    std::vector<std::uint32_t> outputChannels;  // 0: a buffer of two channels without memory.
};

const std::array scenes = {
    Scene{"interleaved", {}, {2}, {2}},
    Scene{"planar", {.tapBufferCount = 2, .isInterleaved = false}, {1, 1}, {1, 1}},
    Scene{"mono tap", {.sampleRate = 44100}, {1}, {2}},
    Scene{"mono device", {.leftChannel = 1, .rightChannel = 1}, {2}, {1}},
    Scene{"microphone first", {.leftChannel = 3, .rightChannel = 4, .sampleRate = 96000}, {1, 2}, {6}},
    Scene{"crossed, spread out",
        {.leftChannel = 6, .rightChannel = 2, .tapBufferCount = 2, .isInterleaved = false}, {2, 1, 1},
        {2, 0, 3}},
    Scene{"tap of one planar buffer", {.isInterleaved = false, .sampleRate = 192000}, {1}, {2}},
    Scene{"tap of six channels", {.sampleRate = 8000}, {6}, {2, 2}},
};

class Walk {
public:
    /// `kernels`: null for the plain implementation.
    Walk(const Scene& scene, const RenderKernels* kernels, unsigned seed)
        : scene_(scene)
        , random_(seed)
    {
        changeSettings();
        const auto& layout = scene.layout;
        const TapFormat rendererLayout{
            .sampleRate = layout.sampleRate,
            .output = {static_cast<std::uint32_t>(layout.leftChannel),
                static_cast<std::uint32_t>(layout.rightChannel)},
            .tapBufferCount = static_cast<std::size_t>(layout.tapBufferCount),
            .isTapInterleaved = layout.isInterleaved,
        };
        renderer_ = std::make_unique<Renderer>(parameters_, rendererLayout, kernels);
        reference_.emplace(parameters_->values, layout);
        seen_ = parameters_->values;
        seenSections_ = parameters_->coefficients;
    }

    /// Runs one cycle of both; whether every bit of the output, the peak and the flag agree.
    [[nodiscard]] bool step()
    {
        std::unique_lock<UnfairLock> busy;
        if (oneIn(3))
            changeSettings();
        if (oneIn(8)) {
            busy = std::unique_lock(parameters_->lock);  // The cycle uses the previous snapshot.
        } else {
            seen_ = parameters_->values;
            seenSections_ = parameters_->coefficients;
        }

        const std::size_t frames = oneIn(2) ? upTo(30) : upTo(1100);
        const auto input = makeInput(frames);
        CycleBuffers output;
        CycleBuffers expected;
        for (const auto channels : scene_.outputChannels) {
            const std::size_t room = oneIn(10) ? frames + upTo(20) : frames;
            for (auto* buffers : {&output, &expected})
                channels == 0 ? buffers->addNull(2, room) : buffers->add(channels, room, 7.0F);
        }

        renderer_->render({}, input.view(), output.view());
        reference_->cycle(seen_, seenSections_, input, expected);

        const bool isPeakEqual = bits(parameters_->takePeak()) == bits(reference_->blockPeak);
        return isPeakEqual && parameters_->audioSeen == reference_->audioSeen && areEqual(output, expected);
    }

private:
    bool oneIn(unsigned n) { return random_() % n == 0; }
    std::size_t upTo(std::size_t most) { return 1 + random_() % most; }
    float between(float low, float high) { return std::uniform_real_distribution(low, high)(random_); }
    static std::uint32_t bits(float value) { return std::bit_cast<std::uint32_t>(value); }

    void changeSettings()
    {
        if (oneIn(2)) {
            std::vector<float> gains(10);
            for (float& gain : gains)
                gain = oneIn(3) ? 0 : between(-13, 13);
            parameters_->setEQ(eqCoefficients(gains, scene_.layout.sampleRate));
        }
        const std::scoped_lock guard(parameters_->lock);
        auto& values = parameters_->values;
        values.volume = oneIn(3) ? 1 : between(0, 2);
        values.muted = oneIn(5);
        values.duck = oneIn(2) ? 1 : between(0, 1);
        values.eqEnabled = !oneIn(3);
        values.preamp = oneIn(3) ? 1 : between(0, 4);
    }

    CycleBuffers makeInput(std::size_t frames)
    {
        CycleBuffers input;
        const unsigned mode = static_cast<unsigned>(random_() % 7);
        for (const auto channels : scene_.inputChannels) {
            const std::size_t room = oneIn(10) ? upTo(frames) : frames + (oneIn(10) ? 5 : 0);
            std::vector<float> samples(channels * room);
            for (float& sample : samples)
                sample = sampleFor(mode);
            input.add(channels, std::move(samples));
        }
        return input;
    }

    float sampleFor(unsigned mode)
    {
        constexpr float infinity = std::numeric_limits<float>::infinity();
        switch (mode) {
        case 0:
            return 0;
        case 1:
            return oneIn(2) ? 0.0F : -0.0F;
        case 2:
            return between(-1e-24F, 1e-24F);
        case 3:
            return (oneIn(2) ? 1.0F : -1.0F) * std::pow(10.0F, between(-45, 1));
        case 4:
            return oneIn(10) ? (oneIn(2) ? infinity : std::nanf("")) : between(-1, 1);
        default:
            return between(-1.2F, 1.2F);
        }
    }

    static bool areEqual(const CycleBuffers& one, const CycleBuffers& other)
    {
        for (std::size_t buffer = 0; buffer < one.size(); ++buffer) {
            for (std::size_t i = 0; i < one.samples(buffer).size(); ++i) {
                if (bits(one.samples(buffer)[i]) != bits(other.samples(buffer)[i]))
                    return false;
            }
        }
        return true;
    }

    const Scene& scene_;
    std::mt19937 random_;
    std::shared_ptr<TapParameters> parameters_ = std::make_shared<TapParameters>();
    std::unique_ptr<Renderer> renderer_;
    std::optional<ReferenceRenderer> reference_;
    TapParameters::Values seen_;
    EQCoefficients seenSections_{};
};

class RendererWalk : public testing::TestWithParam<std::size_t> {
protected:
    static void walk(const RenderKernels* kernels)
    {
        const Scene& scene = scenes[GetParam()];
        const char* form = kernels ? kernels->name : "plain";
        for (unsigned seed = 1; seed <= 8; ++seed) {
            Walk walk(scene, kernels, seed);
            for (int step = 0; step < 150; ++step)
                ASSERT_TRUE(walk.step())
                    << scene.name << ", " << form << ", seed " << seed << ", step " << step;
        }
    }
};

TEST_P(RendererWalk, givesTheReferencesBitsInThePlainForm)
{
    walk(nullptr);
}

TEST_P(RendererWalk, givesTheReferencesBitsWithAnyKernels)
{
    for (const RenderKernels* kernels : usableKernels())
        walk(kernels);
}

INSTANTIATE_TEST_SUITE_P(Scenes, RendererWalk, testing::Range(std::size_t{0}, scenes.size()));

}  // namespace
}  // namespace fadeloom
