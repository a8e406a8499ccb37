#include "damages.h"

#include <fstream>
#include <iterator>

#include "base/random.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

/// Where the whole file waits.
fs::path asideOf(const fs::path& file) {
    return file.string() + ".aside";
}

std::string noiseOf(std::size_t size) {
    std::string noise(size, ' ');
    RandomGenerator random{5};
    for (char& c : noise) {
        c = static_cast<char>(random.next());
    }
    return noise;
}

void damageFile(const fs::path& file, FileDamage damage) {
    const fs::path whole = asideOf(file);
    fs::rename(file, whole);
    switch (damage) {
    case FileDamage::missing: break;
    case FileDamage::empty: writeText(file, ""); break;
    case FileDamage::cut: {
        const std::string text = readText(whole);
        writeText(file, text.substr(0, text.size() / 2));
        break;
    }
    case FileDamage::noise: writeText(file, noiseOf(fs::file_size(whole))); break;
    case FileDamage::unreadable:
        writeText(file, "secret");
        fs::permissions(file, fs::perms::none);
        break;
    case FileDamage::folder: fs::create_directory(file); break;
    }
}

/// What stands there, as one text.
std::string stateOf(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(file, error);
    if (!fs::is_regular_file(status)) {
        return fs::is_directory(status) ? "folder" : "none";
    }
    return status.permissions() == fs::perms::none ? "unreadable" : "file " + readText(file);
}

} // namespace

std::string readText(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeText(const fs::path& file, std::string_view text) {
    std::ofstream(file, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
}

DamagedFiles::DamagedFiles(std::vector<fs::path> files, FileDamage damage)
    : files_(std::move(files)), damage_(damage) {
    for (const fs::path& file : files_) {
        damageFile(file, damage_);
        damaged_.push_back(stateOf(file));
    }
}

DamagedFiles::~DamagedFiles() {
    std::error_code ignored;
    for (const fs::path& file : files_) {
        fs::remove_all(file, ignored);
        fs::rename(asideOf(file), file, ignored);
    }
}

bool DamagedFiles::areLeftAlone() const {
    for (std::size_t i = 0; i < files_.size(); ++i) {
        if (stateOf(files_[i]) != damaged_[i]) {
            return false;
        }
    }
    return true;
}

} // namespace ventrel
