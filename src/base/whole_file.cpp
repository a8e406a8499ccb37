#include "base/whole_file.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pieceSize = std::size_t{64} << 10;

/// Where the new content stands until it is whole.
fs::path besides(const fs::path& file) {
    fs::path path = file;
    path += ".new";
    return path;
}

/// Writes piece by piece, so that the count says where the disk was full.
std::size_t writePieces(std::ofstream& stream, std::span<const std::byte> content) {
    std::size_t written = 0;
    while (written < content.size()) {
        const auto piece = content.subspan(written, std::min(pieceSize, content.size() - written));
        stream.write(reinterpret_cast<const char*>(piece.data()), static_cast<std::streamsize>(piece.size()));
        if (!stream.flush()) {
            return written;
        }
        written += piece.size();
    }
    return written;
}

/// Makes the file. Fewer than all bytes when the disk fails, also when it does so on closing alone.
std::size_t writeFresh(const fs::path& file, std::span<const std::byte> content) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    const std::size_t written = writePieces(stream, content);
    stream.close();
    return stream ? written : std::min(written, content.size() - 1);
}

/// A link is followed, so that the file it names is the one replaced.
fs::path resolved(const fs::path& file) {
    std::error_code error;
    const fs::path target = fs::canonical(file, error);
    return error ? file : target;
}

} // namespace

std::optional<std::vector<std::byte>> readFileStart(const fs::path& file, std::size_t limit) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        return std::nullopt; // and not opened: a pipe would wait for its writer
    }
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    std::vector<std::byte> content;
    // Grows with what is there, so that a hostile length never becomes a giant allocation.
    while (stream && content.size() < limit) {
        const std::size_t had = content.size();
        content.resize(had + std::min(pieceSize, limit - had));
        stream.read(reinterpret_cast<char*>(content.data() + had),
                    static_cast<std::streamsize>(content.size() - had));
        content.resize(had + static_cast<std::size_t>(stream.gcount()));
    }
    return content;
}

bool canBeRewritten(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) &&
           std::fstream(file, std::ios::binary | std::ios::in | std::ios::out).is_open();
}

std::size_t replaceFile(const fs::path& file, std::span<const std::byte> content) {
    const fs::path target = resolved(file);
    const fs::path fresh = besides(target);
    std::error_code error;
    // Renaming asks the folder alone, so the file itself has to be asked first.
    if (fs::exists(target, error) && !canBeRewritten(target)) {
        return 0;
    }
    const std::size_t written = writeFresh(fresh, content);
    if (written < content.size()) {
        fs::remove(fresh, error);
        return written;
    }
    const fs::perms mode = fs::status(target, error).permissions();
    if (!error && mode != fs::perms::unknown) {
        fs::permissions(fresh, mode, error);
    }
    fs::rename(fresh, target, error);
    if (error) {
        fs::remove(fresh, error);
        return 0;
    }
    return content.size();
}

} // namespace ventrel
