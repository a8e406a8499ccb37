#include "base/file_buffer.h"

#include <fstream>
#include <limits>
#include <new>
#include <string>
#include <system_error>

#include "base/string_table.h"
#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t wholeFile = std::numeric_limits<std::size_t>::max();

void reportOpenFailure(const FailureReporter& report, TextId text, const fs::path& file) {
    report(FormatStringId(text, {pathText(file)}), MessageIcon::stop);
}

/// Texts 4 and 29: how much was wanted, of which file, and how much it became.
void reportTransferFailure(const FailureReporter& report, TextId text, std::size_t wanted,
                           const fs::path& file, std::size_t done) {
    report(FormatStringId(text, {static_cast<long>(wanted), pathText(file), static_cast<long>(done)}),
           MessageIcon::stop);
}

bool canBeOpenedForWriting(const fs::path& file) {
    return FileExists(file) && std::ofstream(file, std::ios::binary | std::ios::in).is_open();
}

} // namespace

bool FileBuffer::Load(const fs::path& file, bool mayWrite, std::optional<std::size_t> size,
                      const FailureReporter& report) {
    Free();
    path = file;
    try {
        auto content = readFileStart(file, size.value_or(wholeFile));
        if (!content) {
            reportOpenFailure(report, TextId::cannotOpenFile, file);
            return false;
        }
        if (size && content->size() < *size) {
            reportTransferFailure(report, TextId::fileReadFailed, *size, file, content->size());
            return false;
        }
        data = std::move(*content);
    } catch (const std::bad_alloc&) {
        std::error_code error;
        const auto wanted = size.value_or(static_cast<std::size_t>(fs::file_size(file, error)));
        report(FormatStringId(TextId::notEnoughMemory, {static_cast<long>(wanted)}), MessageIcon::stop);
        return false;
    }
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
    if (error || !canBeOpenedForWriting(path)) {
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
    return !fs::is_directory(file, error) && std::ifstream(file).is_open();
}

} // namespace ventrel
