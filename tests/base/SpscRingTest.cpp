// SPDX-License-Identifier: MIT
#include "base/SpscRing.h"
#include "tests/support/RealTimeGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <numeric>
#include <thread>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<float> countingFrom(float first, std::size_t count)
{
    std::vector<float> samples(count);
    std::iota(samples.begin(), samples.end(), first);
    return samples;
}

TEST(SpscRing, preservesOrder)
{
    SpscRing<float> ring{8};
    EXPECT_THAT(ring.oldest(), IsEmpty());

    EXPECT_TRUE(ring.push(countingFrom(1, 3)));
    EXPECT_TRUE(ring.push(countingFrom(4, 2)));

    EXPECT_THAT(ring.oldest(), ElementsAre(1, 2, 3, 4, 5));
    ring.release(2);
    EXPECT_THAT(ring.oldest(), ElementsAre(3, 4, 5));
    ring.release(3);
    EXPECT_THAT(ring.oldest(), IsEmpty());
}

TEST(SpscRing, holdsAtLeastTheRequestedCapacity)
{
    EXPECT_EQ(SpscRing<float>{8}.capacity(), 8U);
    EXPECT_EQ(SpscRing<float>{9}.capacity(), 16U);
    SpscRing<float> ring{384'000};

    EXPECT_TRUE(ring.push(std::vector<float>(384'000)));
}

TEST(SpscRing, takesAllOrNothing)
{
    SpscRing<float> ring{8};
    EXPECT_TRUE(ring.push(countingFrom(1, 6)));

    EXPECT_FALSE(ring.push(countingFrom(7, 3)));
    EXPECT_THAT(ring.oldest(), ElementsAre(1, 2, 3, 4, 5, 6));

    EXPECT_TRUE(ring.push(countingFrom(7, 2)));
    EXPECT_FALSE(ring.push(countingFrom(9, 1)));
    EXPECT_TRUE(ring.push({}));
    EXPECT_THAT(ring.oldest(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
}

TEST(SpscRing, refusesMoreThanItsCapacity)
{
    SpscRing<float> ring{8};

    EXPECT_FALSE(ring.push(countingFrom(1, 9)));
    EXPECT_THAT(ring.oldest(), IsEmpty());
}

TEST(SpscRing, wrapsAroundToItsBeginning)
{
    SpscRing<float> ring{8};
    EXPECT_TRUE(ring.push(countingFrom(1, 6)));
    ring.release(5);

    EXPECT_TRUE(ring.push(countingFrom(7, 7)));

    EXPECT_THAT(ring.oldest(), ElementsAre(6, 7, 8));
    ring.release(3);
    EXPECT_THAT(ring.oldest(), ElementsAre(9, 10, 11, 12, 13));
}

TEST(SpscRing, popsAcrossTheWraparound)
{
    SpscRing<float> ring{8};
    EXPECT_TRUE(ring.push(countingFrom(1, 6)));
    ring.release(5);
    EXPECT_TRUE(ring.push(countingFrom(7, 4)));
    EXPECT_EQ(ring.room(), 3U);
    std::vector<float> popped(4);

    EXPECT_EQ(ring.pop(popped), 4U);
    EXPECT_THAT(popped, ElementsAre(6, 7, 8, 9));
    EXPECT_EQ(ring.pop(popped), 1U);
    EXPECT_EQ(popped.front(), 10);
    EXPECT_EQ(ring.pop(popped), 0U);
    EXPECT_EQ(ring.room(), 8U);
}

long pageFaultsOfThisThread()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_minflt;
}

TEST(SpscRing, itsMemoryIsAllocatedBeforeTheFirstSample)
{
    constexpr std::size_t size = std::size_t{1} << 20;  // 1024 pages of 4096 bytes.
    SpscRing<float> ring{size};
    const std::vector<float> samples(size / 8);
    const long before = pageFaultsOfThisThread();

    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(ring.push(samples));

    // Code that runs for the first time; reading `samples`; a sanitizer's shadow memory of both.
    const long ofOthers = isGuarding() ? 50 : 400;
    EXPECT_LT(pageFaultsOfThisThread() - before, ofOthers);
}

TEST(SpscRing, twoThreadsPassEverySampleOnce)
{
    SpscRing<float> ring{1024};
    constexpr int last = 4'000'000;  // All integers up to 2^24 are exact as floats.
    int wrong = 0;

    std::jthread consumer{[&] {
        int expected = 0;
        while (expected < last) {
            const auto samples = ring.oldest();
            for (const float sample : samples)
                wrong += sample == static_cast<float>(expected++) ? 0 : 1;
            ring.release(samples.size());
            if (samples.empty())
                std::this_thread::yield();
        }
    }};
    std::vector<float> cycle;
    for (int next = 0; next < last;) {
        const auto size = static_cast<std::size_t>(std::min(next % 257 + 1, last - next));
        cycle = countingFrom(static_cast<float>(next), size);
        while (!ring.push(cycle))
            std::this_thread::yield();
        next += static_cast<int>(size);
    }
    consumer.join();

    EXPECT_EQ(wrong, 0);
    EXPECT_THAT(ring.oldest(), IsEmpty());
}

}  // namespace
}  // namespace fadeloom
