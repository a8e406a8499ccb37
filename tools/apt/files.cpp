#include "tools/apt/files.h"

#include <algorithm>
#include <cstdio>
#include <system_error>

#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel::apt {

namespace fs = std::filesystem;

namespace {

/// By device and inode, so that links don't hide it.
bool isSameFile(const fs::path& a, const fs::path& b) {
    std::error_code error;
    return fs::equivalent(a, b, error) && !error;
}

} // namespace

Result<> writeFile(const fs::path& file, std::span<const std::byte> content,
                   std::span<const fs::path> inputs) {
    for (const fs::path& input : inputs) {
        if (isSameFile(file, input)) {
            return failed(pathText(file) + ": not written; it is the same file as the input " +
                          pathText(input));
        }
    }
    return replaceFile(file, content);
}

Result<fs::path> fileBeside(const fs::path& source, const std::string& name) {
    fs::path file = source.parent_path() / name;
    std::error_code error;
    const fs::path folder = fs::canonical(source, error).parent_path();
    const fs::path target = fs::weakly_canonical(file, error);
    const auto [left, _] = std::ranges::mismatch(folder, target);
    if (error || left != folder.end()) {
        return failed(pathText(file) + ": leads out of the source's folder");
    }
    return file;
}

Result<> print(std::string_view text) {
    const std::string shown = toTerminal(text);
    const bool isWritten = std::fwrite(shown.data(), 1, shown.size(), stdout) == shown.size();
    if (std::fflush(stdout) != 0 || !isWritten) {
        return failed("the standard output cannot be written");
    }
    return {};
}

void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel-apt: %s\n", toTerminal(text).c_str());
}

} // namespace ventrel::apt
