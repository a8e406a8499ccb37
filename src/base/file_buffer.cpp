#include "base/file_buffer.h"

#include <algorithm>
#include <fstream>
#include <new>
#include <system_error>
#include <utility>

#include "base/string_table.h"
#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

void reportOpenFailure(const FailureReporter& report, TextId text, const fs::path& file) {
    report(FormatStringId(text, {pathText(file)}), MessageIcon::stop);
}

/// Texts 4 and 29: how much was wanted, of which file, and how much it became.
void reportTransferFailure(const FailureReporter& report, TextId text, std::size_t wanted,
                           const fs::path& file, std::size_t done) {
    report(FormatStringId(text, {static_cast<long>(wanted), pathText(file), static_cast<long>(done)}),
           MessageIcon::stop);
}

/// The first `wanted` bytes of a file of `length` bytes, or what is there; nothing when memory cannot hold
/// them.
std::optional<std::vector<std::byte>> readWithinMemory(const fs::path& file, std::size_t wanted,
                                                       std::size_t length) {
    if (std::min(wanted, length) > FileBuffer::mostBytes) {
        return std::nullopt;
    }
    try {
        return readFileStart(file, wanted).value_or(std::vector<std::byte>{});
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

} // namespace

bool FileBuffer::Load(const fs::path& file, bool mayWrite, std::optional<std::size_t> size,
                      const FailureReporter& report) {
    Free();
    path = file;
    std::error_code error;
    const auto length = static_cast<std::size_t>(fs::file_size(file, error));
    if (error || !FileExists(file)) {
        reportOpenFailure(report, TextId::cannotOpenFile, file);
        return false;
    }
    const std::size_t wanted = size.value_or(length);
    auto content = readWithinMemory(file, wanted, length);
    if (!content) {
        report(FormatStringId(TextId::notEnoughMemory, {static_cast<long>(wanted)}), MessageIcon::stop);
        return false;
    }
    if (content->size() < wanted) {
        reportTransferFailure(report, TextId::fileReadFailed, wanted, file, content->size());
        return false;
    }
    data = std::move(*content);
    loaded = true;
    writable = mayWrite;
    return true;
}

bool FileBuffer::Save(const FailureReporter& report) {
    if (!writable) {
        return false;
    }
    std::error_code error;
    const auto length = static_cast<std::size_t>(fs::file_size(path, error));
    if (error || !canBeRewritten(path)) {
        reportOpenFailure(report, TextId::cannotOpenForWriting, path);
        return false;
    }
    const std::size_t written = data.size() < length ? data.size() : replaceFile(path, {data.data(), length});
    if (written < length) {
        reportTransferFailure(report, TextId::fileWriteFailed, length, path, written);
        return false;
    }
    return true;
}

void FileBuffer::Free() {
    data.clear();
    data.shrink_to_fit();
    loaded = false;
    writable = false;
}

bool FileExists(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && std::ifstream(file).is_open();
}

} // namespace ventrel
