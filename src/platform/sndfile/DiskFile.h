// SPDX-License-Identifier: MIT
// A new file and sequential writes to it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>
#include <span>

namespace fadeloom {

/// Errors are errno values. Thread: any, one at a time.
class DiskFile {
public:
    /// Creates an empty file, replacing any file of that name: an open handle keeps the old one, and a symbolic link is
    /// replaced, not followed. The permissions are those of any document, according to the umask.
    [[nodiscard]] static std::expected<std::unique_ptr<DiskFile>, int> create(
        const std::filesystem::path& location);
    ~DiskFile() { close(); }
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;

    /// In bytes.
    [[nodiscard]] std::uint64_t size() const { return size_; }
    /// The first error of any operation, or 0.
    [[nodiscard]] int failure() const { return failure_; }

    /// Returns how many bytes were written: all of them, or fewer after an error.
    std::size_t write(std::uint64_t offset, std::span<const std::byte> bytes);
    /// Truncates the file.
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
