#include "base/file_buffer.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

#include "base/file_reading.h"
#include "base/fresh_file.h"
#include "base/string_table.h"
#include "base/windows1252.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

tl::unexpected<Failure> cannotOpen(TextId text, const fs::path& file) {
    return failed(FormatStringId(text, {pathText(file)}));
}

/// Texts 4 and 29: how much was wanted, of which file, and how much it became.
tl::unexpected<Failure> cutShort(TextId text, std::size_t wanted, const fs::path& file, std::size_t done) {
    return failed(FormatStringId(text, {static_cast<long>(wanted), pathText(file), static_cast<long>(done)}));
}

/// The first `wanted` bytes of the file.
Result<Bytes> readFirst(const FileHandle& handle, std::size_t wanted, const fs::path& file) {
    try {
        ReadPart part = readUpTo(handle, wanted);
        if (part.content.size() < wanted) {
            return cutShort(TextId::fileReadFailed, wanted, file, part.content.size());
        }
        return std::move(part.content);
    } catch (const std::bad_alloc&) {
        return failed(FormatStringId(TextId::notEnoughMemory, {static_cast<long>(wanted)}));
    }
}

} // namespace

Result<> FileBuffer::load(const fs::path& file, bool mayWrite, std::optional<std::size_t> size) {
    free();
    path = file;
    const OpenedFile opened = openForReading(file);
    if (!opened.handle.isOpen()) {
        return cannotOpen(TextId::cannotOpenFile, file);
    }
    const std::size_t wanted = size.value_or(opened.length);
    if (std::min(wanted, opened.length) > mostBytes) {
        return tl::unexpected(tooLarge(file, mostBytes));
    }
    auto content = readFirst(opened.handle, wanted, file);
    if (!content) {
        return tl::unexpected(std::move(content.error()));
    }
    data = std::move(*content);
    loaded = true;
    writable = mayWrite;
    return {};
}

Result<> FileBuffer::save() {
    if (!writable) {
        return failed("");
    }
    std::error_code error;
    const auto length = static_cast<std::size_t>(fs::file_size(path, error));
    if (error || !canBeRewritten(path)) {
        return cannotOpen(TextId::cannotOpenForWriting, path);
    }
    auto fresh = FreshFile::beside(path);
    if (!fresh) {
        return cannotOpen(TextId::cannotOpenForWriting, path);
    }
    const std::size_t written = fresh->write({data.data(), std::min(data.size(), length)});
    if (written < length || !fresh->putInPlace()) {
        return cutShort(TextId::fileWriteFailed, length, path, written);
    }
    return {};
}

void FileBuffer::free() {
    data.clear();
    data.shrink_to_fit();
    loaded = false;
    writable = false;
}

bool FileExists(const fs::path& file) {
    return openForReading(file).handle.isOpen();
}

} // namespace ventrel
