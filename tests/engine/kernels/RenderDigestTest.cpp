// SPDX-License-Identifier: MIT
// The same output on every processor: a fixed piece has one digest, wherever it is rendered.
//
// All inputs are literals. The design of coefficients is not included, because it uses sines and powers that libraries
// round differently.
#include "engine/PlainRender.h"
#include "engine/kernels/FastRender.h"
#include "tests/engine/kernels/KernelTest.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace fadeloom {
namespace {

constexpr std::uint64_t storedDigest = 0x4ABE57F61B5763AA;

// +6, -4.5, +3, -2, +7.5, -6, +4, +2.5, -3 and +5 dB at 48 kHz.
constexpr EQCoefficients digestedCurve{{
    {0x1.00448463bdac5p+0, -0x1.ff752a2a48becp+0, 0x1.fe6397ad38292p-1, -0x1.ff752a2a48becp+0,
        0x1.feeca074b381cp-1},
    {0x1.ff34c99d727a3p-1, -0x1.fe04d659419e8p+0, 0x1.fcde0d049becap-1, -0x1.fe04d659419e8p+0,
        0x1.fc12d6a20e66fp-1},
    {0x1.008357ef9e548p+0, -0x1.fd71c7d8d1e84p+0, 0x1.f9ffcb834de68p-1, -0x1.fd71c7d8d1e84p+0,
        0x1.fb067b628a8f9p-1},
    {0x1.fea59121c7dfdp-1, -0x1.f926538fbc284p+0, 0x1.f431a32bd2a57p-1, -0x1.f926538fbc284p+0,
        0x1.f2d7344d9a854p-1},
    {0x1.0535800e5e537p+0, -0x1.f752c357adcd7p+0, 0x1.e66377e394507p-1, -0x1.f752c357adcd7p+0,
        0x1.f0ce780050f72p-1},
    {0x1.f053b8335a3e5p-1, -0x1.dc77d0ae37754p+0, 0x1.d0d4f5b470dc6p-1, -0x1.dc77d0ae37754p+0,
        0x1.c128ade7cb1abp-1},
    {0x1.0a2c9cae4beefp+0, -0x1.ccf30581e8887p+0, 0x1.a61235f10febp-1, -0x1.ccf30581e8887p+0,
        0x1.ba6b6f4da7c8ep-1},
    {0x1.0b5d52ca6aa6ap+0, -0x1.8062eb71eaa02p+0, 0x1.60f92973ee3cdp-1, -0x1.8062eb71eaa02p+0,
        0x1.77b3cf08c389fp-1},
    {0x1.d8041df81f2ecp-1, -0x1.77181d1d9a967p-1, 0x1.162c1c4315fdep-1, -0x1.77181d1d9a967p-1,
        0x1.dc6074766a595p-2},
    {0x1.254b78470eefbp+0, 0x1.a0292fe93672cp-1, 0x1.eb76de889e0d1p-2, 0x1.a0292fe93672cp-1,
        0x1.40525fd26ce5ep-1},
}};

/// The first bands of the curve; the others are flat.
EQCoefficients firstOfTheCurve(std::size_t count)
{
    EQCoefficients sections{};
    for (std::size_t band = 0; band < count; ++band)
        sections[band] = digestedCurve[band];
    return sections;
}

class Digest {
public:
    void add(float value)
    {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8)
            value_ = (value_ ^ (bits >> shift & 0xFF)) * 0x100000001B3;  // FNV-1a.
    }
    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

class DigestedNoise {
public:
    /// From -1 to 1, in steps that single precision can distinguish.
    float next()
    {
        state_ = state_ * 6364136223846793005 + 1442695040888963407;
        return static_cast<float>(static_cast<std::int32_t>(state_ >> 40) - 0x800000) * 0x1p-23F;
    }

private:
    std::uint64_t state_ = 1;
};

using Render = std::function<float(RenderState&, const RenderSettings&, std::span<float>, std::span<float>)>;

std::uint64_t digestOf(const Render& render)
{
    Digest digest;
    DigestedNoise noise;
    RenderState state{.gain = {.coefficient = 0x1.1p-10F},
        .duck = {.coefficient = 0x1.2p-14F},
        .limiter = {.release = 0x1.1p-12F}};
    for (std::size_t call = 0; call < 600; ++call) {
        const auto sections = firstOfTheCurve(call / 7 % 11);
        const RenderSettings settings{
            .gainTarget = std::array{1.0F, 0.25F, 2.0F, 0.0F}[call / 40 % 4],
            .duckTarget = call / 100 % 2 == 0 ? 1.0F : 0.3F,
            .isEqualized = call % 50 < 35,
            .preamp = 0.75F,
            .sections = sections,
        };
        const float level = std::array{0.1F, 1.0F, 3.0F, 1e-20F, 0.0F}[call / 11 % 5];
        std::vector<float> left(1 + call * 37 % 700);
        std::vector<float> right(left.size());
        for (std::size_t i = 0; i < left.size(); ++i) {
            left[i] = level * noise.next();
            right[i] = level * noise.next();
        }
        digest.add(render(state, settings, left, right));
        for (std::size_t i = 0; i < left.size(); ++i) {
            digest.add(left[i]);
            digest.add(right[i]);
        }
        digest.add(state.gain.current);
        digest.add(state.duck.current);
        digest.add(state.limiter.reduction);
    }
    return digest.value();
}

TEST(PlainRenderDigest, isTheStoredOne)
{
    EXPECT_EQ(digestOf(renderPlain), storedDigest);
}

class RenderDigest : public KernelTest { };

TEST_P(RenderDigest, isTheStoredOne)
{
    FastRender fast(kernels());
    EXPECT_EQ(digestOf(std::bind_front(&FastRender::render, &fast)), storedDigest);
}

INSTANTIATE_TEST_SUITE_P(Kernels, RenderDigest, KernelTest::every(), KernelTest::name);

}  // namespace
}  // namespace fadeloom
