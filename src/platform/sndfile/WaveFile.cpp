// SPDX-License-Identifier: MIT
#include "platform/sndfile/WaveFile.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>
#include <cstdio>
#include <type_traits>
#include <utility>

namespace fadeloom {

static_assert(std::is_same_v<std::int32_t, int>);  // The sample type of libsndfile.

/// libsndfile's virtual IO.
struct WaveFile::Callbacks {
    static WaveFile& of(void* self) { return *static_cast<WaveFile*>(self); }

    static sf_count_t length(void* self) { return static_cast<sf_count_t>(of(self).disk_->size()); }
    static sf_count_t tell(void* self) { return static_cast<sf_count_t>(of(self).position_); }
    static sf_count_t seek(sf_count_t offset, int whence, void* self)
    {
        const sf_count_t origin = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? tell(self) : length(self);
        of(self).position_ = static_cast<std::uint64_t>(origin + offset);
        return origin + offset;
    }
    static sf_count_t write(const void* bytes, sf_count_t count, void* self)
    {
        return of(self).write({static_cast<const std::byte*>(bytes), static_cast<std::size_t>(count)});
    }
};

std::expected<std::unique_ptr<WaveFile>, int> WaveFile::create(
    std::unique_ptr<DiskFile> disk, int sampleRate, std::uint64_t largestRiff)
{
    std::unique_ptr<WaveFile> file{new WaveFile(std::move(disk), largestRiff)};
    if (!file->open(sampleRate))
        return std::unexpected(file->failure());
    return file;
}

WaveFile::WaveFile(std::unique_ptr<DiskFile> disk, std::uint64_t largestRiff)
    : disk_(std::move(disk))
    , largestRiff_(largestRiff)
{
}

bool WaveFile::open(int sampleRate)
{
    SF_VIRTUAL_IO callbacks{
        &Callbacks::length, &Callbacks::seek, nullptr, &Callbacks::write, &Callbacks::tell};
    SF_INFO info{};
    info.samplerate = sampleRate;
    info.channels = channels;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_24;
    file_.reset(sf_open_virtual(&callbacks, SFM_WRITE, &info, this));
    std::array<char, 28> room{};
    SF_CHUNK_INFO junk{"JUNK", 4, room.size(), room.data()};
    if (!file_ || sf_set_chunk(file_.get(), &junk) != SF_ERR_NO_ERROR)
        return false;
    updateHeader();
    updateHeader();  // The first header was written before the reserved space was added.
    return disk_->size() == sizeof(WaveHeader);
}

int WaveFile::append(std::span<const std::int32_t> samples)
{
    assert(samples.size() % channels == 0);
    const auto frames = static_cast<sf_count_t>(samples.size() / channels);
    const std::uint64_t sizeBefore = disk_->size();
    const sf_count_t written = sf_writef_int(file_.get(), samples.data(), frames);
    if (written < frames)
        disk_->truncate(sizeBefore + static_cast<std::uint64_t>(written) * bytesPerFrame);
    updateHeader();
    return written < frames ? failure() : disk_->failure();
}

int WaveFile::close()
{
    file_.reset();
    disk_->close();
    return disk_->failure();
}

int WaveFile::failure() const
{
    return disk_->failure() != 0 ? disk_->failure() : EIO;
}

void WaveFile::updateHeader()
{
    sf_command(file_.get(), SFC_UPDATE_HEADER_NOW, nullptr, 0);
}

sf_count_t WaveFile::write(std::span<const std::byte> bytes)
{
    WaveHeader header;
    if (position_ == 0 && bytes.size() == header.size() && disk_->size() > largestRiff_) {
        std::ranges::copy(bytes, header.begin());
        header = rf64Header(header, disk_->size(), bytesPerFrame);
        bytes = header;
    }
    const std::size_t written = disk_->write(position_, bytes);
    position_ += written;
    return static_cast<sf_count_t>(written);
}

}  // namespace fadeloom
