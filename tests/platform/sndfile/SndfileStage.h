// SPDX-License-Identifier: MIT
// The fixture of tests of libsndfile's files.
#pragma once

#include "platform/sndfile/SndfileAudioFiles.h"
#include "tests/platform/sndfile/WaveReading.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <functional>
#include <thread>
#include <vector>

namespace fadeloom {

class SndfileTest : public ::testing::Test {
protected:
    static constexpr int rate = 48000;

    AudioFile* open(const std::filesystem::path& path)
    {
        const auto file = files.create(path, rate);
        if (!file) {
            ADD_FAILURE() << file.error().description();
            return nullptr;
        }
        return *file;
    }

    /// `frames` frames, starting at frame `first`, of a signal with a long period.
    static Steps steps(std::uint64_t first, std::size_t frames)
    {
        Steps result(2 * frames);
        std::uint64_t index = 2 * first;
        for (std::int32_t& step : result)
            step = static_cast<std::int32_t>(index++ * 2'654'435'761U >> 8 & 0xFFFFFF) - (1 << 23);
        return result;
    }
    static std::vector<float> samples(std::uint64_t first, std::size_t frames)
    {
        return samplesOf(steps(first, frames));
    }

    /// Waits until `isDone` returns true; false if that takes too long.
    [[nodiscard]] static bool waitUntil(const std::function<bool()>& isDone)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds{20};
        while (std::chrono::steady_clock::now() < end) {
            if (isDone())
                return true;
            std::this_thread::sleep_for(std::chrono::milliseconds{1});
        }
        return false;
    }

    TemporaryFolder folder;
    const std::filesystem::path location = folder.path() / "sound.wav";
    SndfileAudioFiles files;
};

}  // namespace fadeloom
