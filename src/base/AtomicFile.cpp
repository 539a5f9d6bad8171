// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "base/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <system_error>

namespace fadeloom::AtomicFile {

namespace {

namespace fs = std::filesystem;
using Step = FileError::Step;

/// `errno` still holds the error.
std::unexpected<FileError> failed(FileError::Step step, const fs::path& file, int code = errno)
{
    return std::unexpected(
        FileError{.step = step, .file = file, .reason = std::error_code(code, std::generic_category())});
}

std::unexpected<ReadError> unread(const fs::path& file, int code = errno)
{
    const bool isMissing = code == ENOENT || code == ENOTDIR;
    return std::unexpected(ReadError{isMissing ? ReadError::Reason::missing : ReadError::Reason::unreadable,
        failed(Step::read, file, code).error()});
}

std::optional<struct stat> statusOf(const fs::path& file)
{
    struct stat status{};
    if (::stat(file.c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

/// The final target of a chain of symbolic links; it need not exist.
std::expected<fs::path, FileError> endOfLinks(fs::path file)
{
    constexpr int longestChain = 40;
    std::error_code ignored;
    for (int link = 0; link < longestChain; ++link) {
        if (!fs::is_symlink(file, ignored))
            return file;
        const auto target = fs::read_symlink(file, ignored);
        file = file.parent_path() / target;  // An absolute target replaces the left side.
    }
    return failed(Step::follow, file, ELOOP);
}

bool writeAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// A new file in the same folder as another one, deleted unless it replaces that one.
class Successor {
public:
    explicit Successor(const fs::path& file)
        : target_(file)
        , path_((file.parent_path() / ("." + file.filename().string() + ".XXXXXX")).string())
        , descriptor_(::mkostemp(path_.data(), O_CLOEXEC))
        , isLeft_(descriptor_.isOpen())
    {
    }
    Successor(const Successor&) = delete;
    Successor& operator=(const Successor&) = delete;
    ~Successor()
    {
        if (isLeft_)
            ::unlink(path_.c_str());
    }

    [[nodiscard]] bool isOpen() const { return descriptor_.isOpen(); }

    /// Best effort: a file system may not support owners or permissions, which is no reason to lose the content.
    /// Without keeping the owner, running once as root would leave the user a file that only root can read.
    void takeOwnerAndPermissions(const struct stat& old) const
    {
        [[maybe_unused]] const auto refused = ::fchown(descriptor_.get(), old.st_uid, old.st_gid);
        (void)::fchmod(descriptor_.get(), old.st_mode & 07777);
    }

    /// Must be on disk before the rename: otherwise a crash could leave an empty file under the name.
    [[nodiscard]] bool fill(std::string_view content)
    {
        return writeAll(descriptor_.get(), content) && ::fsync(descriptor_.get()) == 0 && descriptor_.close();
    }

    [[nodiscard]] bool takePlace()
    {
        if (::rename(path_.c_str(), target_.c_str()) != 0)
            return false;
        isLeft_ = false;
        return true;
    }

private:
    const fs::path target_;
    std::string path_;
    FileDescriptor descriptor_;
    bool isLeft_;
};

/// Makes the rename durable. Not all file systems support that; the new content is in place either way.
void syncFolder(const fs::path& folder)
{
    const FileDescriptor descriptor(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen())
        (void)::fsync(descriptor.get());
}

}  // namespace

std::expected<std::string, ReadError> read(const fs::path& file, std::size_t maximumSize)
{
    // Non-blocking: opening a pipe would wait for a writer.
    const FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!descriptor.isOpen())
        return unread(file);
    struct stat status{};
    if (::fstat(descriptor.get(), &status) != 0)
        return unread(file);
    if (!S_ISREG(status.st_mode))
        return unread(file, S_ISDIR(status.st_mode) ? EISDIR : EINVAL);

    std::string content;
    std::string block(std::size_t{64} * 1024, '\0');
    while (content.size() <= maximumSize) {
        const auto count = ::read(descriptor.get(), block.data(), block.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return unread(file);
        if (count == 0)
            return content;
        content.append(block, 0, static_cast<std::size_t>(count));
    }
    return std::unexpected(ReadError{ReadError::Reason::tooLarge, {.step = Step::read, .file = file}});
}

std::expected<void, FileError> replace(const fs::path& file, std::string_view content)
{
    const auto target = endOfLinks(file);
    if (!target)
        return std::unexpected(target.error());
    const auto old = statusOf(*target);
    // Replacing a folder would fail, but a device would be replaced by a file, for every user.
    if (old && !S_ISREG(old->st_mode))
        return failed(Step::replace, *target, S_ISDIR(old->st_mode) ? EISDIR : EINVAL);

    Successor successor(*target);
    if (!successor.isOpen())
        return failed(Step::createBeside, *target);
    if (old)
        successor.takeOwnerAndPermissions(*old);
    if (!successor.fill(content))
        return failed(Step::write, *target);
    if (!successor.takePlace())
        return failed(Step::replace, *target);
    syncFolder(target->parent_path());
    return {};
}

}  // namespace fadeloom::AtomicFile
