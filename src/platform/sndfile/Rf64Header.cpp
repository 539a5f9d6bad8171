// SPDX-License-Identifier: MIT
#include "platform/sndfile/Rf64Header.h"

#include <algorithm>
#include <cassert>
#include <span>
#include <string_view>

namespace fadeloom {

namespace {

constexpr std::size_t riffSize = 12;
constexpr std::size_t formatSize = 24;
constexpr std::size_t chunkHeadSize = 8;  // Name and size, which are not included in the size of a chunk.
constexpr std::uint32_t ds64Size = 28;
constexpr std::uint32_t sizeIsInDs64 = 0xFFFFFFFF;

/// Fills a header sequentially.
class Filling {
public:
    explicit Filling(WaveHeader& header)
        : rest_(header)
    {
    }
    Filling& name(std::string_view text) { return bytes(std::as_bytes(std::span{text})); }
    Filling& number(std::uint32_t value) { return littleEndian(value, sizeof value); }
    Filling& number(std::uint64_t value) { return littleEndian(value, sizeof value); }
    Filling& bytes(std::span<const std::byte> content)
    {
        std::ranges::copy(content, rest_.begin());
        rest_ = rest_.subspan(content.size());
        return *this;
    }
    [[nodiscard]] bool isFull() const { return rest_.empty(); }

private:
    Filling& littleEndian(std::uint64_t value, std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
            rest_[i] = static_cast<std::byte>(value >> (8 * i));
        rest_ = rest_.subspan(size);
        return *this;
    }

    std::span<std::byte> rest_;
};

}  // namespace

WaveHeader rf64Header(const WaveHeader& riffHeader, std::uint64_t fileSize, std::uint32_t bytesPerFrame)
{
    const std::uint64_t dataSize = fileSize - riffHeader.size();
    constexpr std::uint32_t tableLength = 0;  // No other chunks with 64-bit sizes.
    WaveHeader header;
    Filling filling{header};
    filling.name("RF64").number(sizeIsInDs64).name("WAVE");
    filling.name("ds64").number(ds64Size);
    filling.number(fileSize - chunkHeadSize)
        .number(dataSize)
        .number(dataSize / bytesPerFrame)
        .number(tableLength);
    filling.bytes(std::span{riffHeader}.subspan(riffSize, formatSize));
    filling.name("data").number(sizeIsInDs64);
    assert(filling.isFull());
    return header;
}

}  // namespace fadeloom
