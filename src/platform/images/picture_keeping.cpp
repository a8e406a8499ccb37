#include "platform/images/picture_keeping.h"

#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel {

Result<> keepPicture(const std::filesystem::path& file, std::span<const std::byte> content) {
    if (content.empty()) {
        return failed(pathText(file) + ": there is no picture to write, or no memory for it");
    }
    return replaceFile(file, content);
}

} // namespace ventrel
