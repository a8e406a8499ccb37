#include "base/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "base/file_reading.h"
#include "base/fresh_file.h"
#include "base/windows1252.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pieceSize = std::size_t{64} << 10;

tl::unexpected<Failure> cannotRead(const fs::path& file, int error) {
    return failed("The file " + pathText(file) + " cannot be read: " + systemWords(error) + ".");
}

Result<Bytes> readStart(const OpenedFile& opened, const fs::path& file, std::size_t limit) {
    if (!opened.handle.isOpen()) {
        return cannotRead(file, opened.error);
    }
    ReadPart part = readUpTo(opened.handle, limit);
    if (part.error != 0) {
        return cannotRead(file, part.error);
    }
    return std::move(part.content);
}

Result<Bytes> readWhole(const OpenedFile& opened, const fs::path& file, std::size_t limit) {
    if (opened.length > limit) {
        return tl::unexpected(tooLarge(file, limit));
    }
    auto content = readStart(opened, file, limit + 1); // a file can grow meanwhile, or not tell its length
    if (content && content->size() > limit) {
        return tl::unexpected(tooLarge(file, limit));
    }
    return content;
}

} // namespace

OpenedFile openForReading(const fs::path& file) {
    // Not waiting for the writer of a pipe.
    OpenedFile opened{FileHandle(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))};
    struct stat status = {};
    if (!opened.handle.isOpen() || ::fstat(opened.handle.get(), &status) != 0) {
        return {.handle = FileHandle(), .error = errno};
    }
    if (!S_ISREG(status.st_mode)) {
        return {.handle = FileHandle(), .error = S_ISDIR(status.st_mode) ? EISDIR : EINVAL};
    }
    opened.length = static_cast<std::size_t>(status.st_size);
    return opened;
}

ReadPart readUpTo(const FileHandle& file, std::size_t limit) {
    ReadPart part;
    // Grows with what is there, so that a hostile length never becomes a giant allocation.
    while (part.content.size() < limit) {
        const std::size_t had = part.content.size();
        part.content.resize(had + std::min(pieceSize, limit - had));
        const ssize_t count = ::read(file.get(), part.content.data() + had, part.content.size() - had);
        part.content.resize(had + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count < 0 && errno != EINTR) {
            part.error = errno;
        }
        if (count == 0 || part.error != 0) {
            break;
        }
    }
    return part;
}

Result<Bytes> readFileStart(const fs::path& file, std::size_t limit) {
    return readStart(openForReading(file), file, limit);
}

Result<Bytes> readWholeFile(const fs::path& file, std::size_t limit) {
    return readWhole(openForReading(file), file, limit);
}

Result<std::optional<Bytes>> readWholeFileIfThere(const fs::path& file, std::size_t limit) {
    const OpenedFile opened = openForReading(file);
    if (opened.error == ENOENT || opened.error == ENOTDIR) {
        return std::nullopt;
    }
    auto content = readWhole(opened, file, limit);
    if (!content) {
        return tl::unexpected(std::move(content.error()));
    }
    return std::move(*content);
}

Failure tooLarge(const fs::path& file, std::size_t limit) {
    return {"The file " + pathText(file) + " is too large: at most " + std::to_string(limit) +
            " bytes can be read."};
}

bool canBeRewritten(const fs::path& file) {
    const FileHandle handle(::open(file.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    return handle.isOpen() && ::fstat(handle.get(), &status) == 0 && S_ISREG(status.st_mode);
}

Result<> replaceFile(const fs::path& file, std::span<const std::byte> content) {
    auto fresh = FreshFile::beside(file);
    if (!fresh) {
        return tl::unexpected(std::move(fresh.error()));
    }
    fresh->write(content);
    return fresh->putInPlace();
}

} // namespace ventrel
