// SPDX-License-Identifier: MIT
// A new file and what is written to it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>
#include <span>

namespace fadeloom {

/// Errors are the system's numbers (errno). Thread: any, one at a time.
class DiskFile {
public:
    /// Makes an empty file, in place of any file of that name: who has the old one open keeps it, and a symbolic link
    /// is replaced, not followed. Like any document it gets the permissions that the user's mask leaves.
    [[nodiscard]] static std::expected<std::unique_ptr<DiskFile>, int> create(
        const std::filesystem::path& location);
    ~DiskFile() { close(); }
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;

    /// In bytes.
    [[nodiscard]] std::uint64_t size() const { return size_; }
    /// The first failure of all that was done here, or 0.
    [[nodiscard]] int failure() const { return failure_; }

    /// Returns how many bytes got onto the disk: all of them, or fewer after a failure.
    std::size_t write(std::uint64_t offset, std::span<const std::byte> bytes);
    /// Cuts the file's end off.
    void truncate(std::uint64_t size);
    void close();

private:
    explicit DiskFile(int descriptor)
        : descriptor_(descriptor)
    {
    }
    void note(int failure);

    int descriptor_;
    std::uint64_t size_ = 0;
    int failure_ = 0;
};

}  // namespace fadeloom
