// The ways in which a file is damaged for the table of faults, and its rescue afterwards.

#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ventrel {

enum class FileDamage { missing, empty, cut, noise, unreadable, folder };

struct NamedDamage {
    FileDamage damage;
    std::string_view name;
};
inline constexpr std::array namedDamages{std::to_array<NamedDamage>({{FileDamage::missing, "missing"},
                                                                     {FileDamage::empty, "empty"},
                                                                     {FileDamage::cut, "cut"},
                                                                     {FileDamage::noise, "noise"},
                                                                     {FileDamage::unreadable, "unreadable"},
                                                                     {FileDamage::folder, "a folder"}})};

std::string readText(const std::filesystem::path& file);
void writeText(const std::filesystem::path& file, std::string_view text);

/// Files that are damaged in the same way until the end of the scope, and are then as they were.
class DamagedFiles {
public:
    DamagedFiles(std::vector<std::filesystem::path> files, FileDamage damage);
    DamagedFiles(const DamagedFiles&) = delete;
    DamagedFiles& operator=(const DamagedFiles&) = delete;
    ~DamagedFiles();

    /// Whether each still stands there as the damage left it; one that was missing is still missing.
    bool areLeftAlone() const;

private:
    std::vector<std::filesystem::path> files_;
    FileDamage damage_;
    std::vector<std::string> damaged_; // what stood there then
};

} // namespace ventrel
