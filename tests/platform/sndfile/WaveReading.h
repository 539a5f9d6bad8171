// SPDX-License-Identifier: MIT
// Reads WAVE files with other programs: libsndfile, sndfile-info and sox.
#pragma once

#include "tests/platform/WrittenSound.h"

#include <sndfile.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace fadeloom {

/// A 24-bit stereo WAVE file, as read by libsndfile, from frame `first` on and at most `count` frames; nullopt if there
/// is no such file.
inline std::optional<WrittenSound> readWave(
    const std::filesystem::path& location, sf_count_t first = 0, sf_count_t count = 100'000'000)
{
    SF_INFO info{};
    SNDFILE* file = sf_open_fd(::open(location.c_str(), O_RDONLY | O_CLOEXEC), SFM_READ, &info, SF_TRUE);
    if (file == nullptr)
        return std::nullopt;
    WrittenSound sound{static_cast<double>(info.samplerate), {}};
    if (info.channels == 2 && (info.format & SF_FORMAT_SUBMASK) == SF_FORMAT_PCM_24) {
        sf_seek(file, first, SEEK_SET);
        sound.steps.resize(static_cast<std::size_t>(2 * std::min(count, info.frames - first)));
        const auto frames = sf_readf_int(file, sound.steps.data(), std::min(count, info.frames - first));
        sound.steps.resize(static_cast<std::size_t>(2 * frames));
        for (std::int32_t& step : sound.steps)
            step >>= 8;
    }
    sf_close(file);
    return sound;
}

/// The output of a shell command, including errors; nullopt if it fails.
inline std::optional<std::string> outputOf(const std::string& command)
{
    std::FILE* pipe = ::popen((command + " 2>&1").c_str(), "re");
    if (pipe == nullptr)
        return std::nullopt;
    std::string output;
    std::array<char, 4096> piece;
    while (const auto count = std::fread(piece.data(), 1, piece.size(), pipe))
        output.append(piece.data(), count);
    return ::pclose(pipe) == 0 ? std::optional{output} : std::nullopt;
}

/// The file's length according to sndfile-info; nullopt if it cannot open the file.
inline std::optional<long long> framesBySndfileInfo(const std::filesystem::path& location)
{
    const auto output = outputOf("sndfile-info '" + location.string() + "'");
    const std::string label = "Frames      : ";
    const auto found = output ? output->find(label) : std::string::npos;
    return found == std::string::npos ? std::nullopt
                                      : std::optional{std::stoll(output->substr(found + label.size()))};
}

/// The file's length according to sox; nullopt if it cannot open the file, or prints any warning.
inline std::optional<long long> framesBySox(const std::filesystem::path& location)
{
    const auto output = outputOf("sox --i -s '" + location.string() + "'");
    const bool isNumber = output && output->find_first_not_of("0123456789\n") == std::string::npos;
    return isNumber ? std::optional{std::stoll(*output)} : std::nullopt;
}

inline std::string bytesOf(const std::filesystem::path& location)
{
    std::ifstream file{location, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

}  // namespace fadeloom
