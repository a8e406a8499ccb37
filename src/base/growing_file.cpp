#include "base/growing_file.h"

#include <fcntl.h>

#include <cerrno>

namespace ventrel {

namespace {

constexpr mode_t ordinaryFile = 0666; // less what the user's mask takes away

} // namespace

Result<GrowingFile> GrowingFile::make(const std::filesystem::path& file) {
    std::error_code folderFault;
    std::filesystem::create_directories(file.parent_path(), folderFault);
    FileHandle handle(
        ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC | O_NOCTTY, ordinaryFile));
    if (!handle.isOpen()) {
        return cannotWrite(file, errno);
    }
    return GrowingFile(std::move(handle), file);
}

Result<> GrowingFile::append(std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(handle_.get(), text.data(), text.size());
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return cannotWrite(path_, count == 0 ? ENOSPC : errno);
        }
    }
    return {};
}

} // namespace ventrel
