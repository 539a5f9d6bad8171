// SPDX-License-Identifier: MIT
// Writing samples, and the thread that writes them to disk.
#include "base/RealTime.h"
#include "tests/platform/sndfile/SndfileStage.h"
#include "tests/support/RealTimeGuard.h"

#include <sched.h>

#include <set>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;

using SndfileWriterTest = SndfileTest;

/// Ids of this program's writer threads.
std::set<pid_t> writers()
{
    std::set<pid_t> found;
    for (const auto& task : fs::directory_iterator{"/proc/self/task"})
        if (bytesOf(task.path() / "comm") == "fadeloom-writer\n")
            found.insert(static_cast<pid_t>(std::stoi(task.path().filename())));
    return found;
}

TEST_F(SndfileWriterTest, eachFileHasAThreadOfTheProgramsOwnPriority)
{
    AudioFile& first = *open(folder.path() / "1.wav");
    AudioFile& second = *open(folder.path() / "2.wav");

    EXPECT_TRUE(waitUntil([] { return writers().size() == 2; }));
    for (const pid_t thread : writers())
        EXPECT_EQ(sched_getscheduler(thread), sched_getscheduler(0));

    files.dispose(first);
    EXPECT_EQ(writers().size(), 1U);
    files.dispose(second);
    EXPECT_EQ(writers().size(), 0U);
}

TEST_F(SndfileWriterTest, pushingSamplesIsRealTimeSafe)
{
    AudioFile& file = *open(location);
    const auto cycle = samples(0, 8192);
    const int before = realTimeViolations();

    bool hasRoom = true;
    {
        const RealTimeSection section;
        for (int i = 0; i < 5000 && hasRoom; ++i)
            hasRoom = file.write(cycle);
    }

    EXPECT_EQ(realTimeViolations() - before, 0) << lastRealTimeViolation();
    EXPECT_FALSE(hasRoom);
    files.dispose(file);
}

TEST_F(SndfileWriterTest, fourSecondsAreBufferedForABusyDisk)
{
    AudioFile& file = *open(location);

    EXPECT_TRUE(file.write(samples(0, 4 * rate)));

    EXPECT_EQ(files.dispose(file), std::nullopt);
    EXPECT_TRUE(readWave(location) == WrittenSound(rate, steps(0, 4 * rate)));
}

TEST_F(SndfileWriterTest, aWriteBeyondTheCapacityIsRefusedEntirely)
{
    AudioFile& file = *open(location);
    EXPECT_TRUE(file.write(samples(0, 100)));

    EXPECT_FALSE(file.write(samples(100, 60 * rate)));
    EXPECT_EQ(file.failure(), std::nullopt);
    EXPECT_TRUE(file.write(samples(7000, 100)));
    EXPECT_EQ(files.dispose(file), std::nullopt);

    auto expected = steps(0, 100);
    std::ranges::copy(steps(7000, 100), std::back_inserter(expected));
    EXPECT_EQ(readWave(location), WrittenSound(rate, expected));
}

TEST_F(SndfileWriterTest, writesThatAreTooFastAreRefusedEntirely)
{
    AudioFile& file = *open(location);
    std::vector<std::vector<float>> cycles;
    for (std::uint64_t i = 0; i < 100; ++i)
        cycles.push_back(samples(4000 * i, 4000));

    std::vector<std::uint64_t> taken;
    std::uint64_t refused = 0;
    for (std::uint64_t i = 0; i < 5000 && (refused < 100 || taken.size() < 200); ++i)
        if (file.write(cycles[i % 100]))
            taken.push_back(i % 100);
        else
            ++refused;
    EXPECT_EQ(files.dispose(file), std::nullopt);

    EXPECT_GT(refused, 0U);
    Steps expected;
    for (const std::uint64_t cycle : taken)
        std::ranges::copy(steps(4000 * cycle, 4000), std::back_inserter(expected));
    EXPECT_TRUE(readWave(location) == WrittenSound(rate, expected));
}

TEST_F(SndfileWriterTest, threadsWriteTheirFilesAtTheSameTime)
{
    constexpr std::uint64_t cycles = 200;
    std::array<AudioFile*, 3> opened{};
    std::array<fs::path, 3> locations;
    for (std::size_t i = 0; i < opened.size(); ++i) {
        locations[i] = folder.path() / (std::to_string(i) + ".wav");
        opened[i] = open(locations[i]);
    }
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < opened.size(); ++i)
            threads.emplace_back([&, i] {
                for (std::uint64_t cycle = 0; cycle < cycles; ++cycle) {
                    EXPECT_TRUE(opened[i]->write(samples(1'000'000 * i + 480 * cycle, 480)));
                    std::this_thread::sleep_for(
                        std::chrono::milliseconds{2});  // Across several wakeups of the writer.
                }
            });
    }
    for (AudioFile* file : opened)
        EXPECT_EQ(files.dispose(*file), std::nullopt);

    for (std::size_t i = 0; i < opened.size(); ++i)
        EXPECT_TRUE(readWave(locations[i]) == WrittenSound(rate, steps(1'000'000 * i, 480 * cycles))) << i;
}

}  // namespace
}  // namespace fadeloom
