// A private profile: "[section]" and "key=value" lines, as text that a person may edit.
//
// What the program does not know (comments, blank lines, other sections and keys, their order) survives a
// rewrite as it stands. The file is written beside itself and renamed, so a full disk loses nothing.

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ventrel {

class ProfileFile {
public:
    /// Reads the file. One that is missing or unreadable counts as empty.
    explicit ProfileFile(std::filesystem::path file);

    /// The value as the classic profile reader takes it: leading blanks, an optional sign and digits; a value
    /// that does not start with a number is 0; a missing key gives `missing`. Wraps round at 32 bits.
    int integer(std::string_view section, std::string_view key, int missing) const;

    /// The value without surrounding blanks and without one pair of enclosing quotes.
    std::string text(std::string_view section, std::string_view key, std::string_view missing) const;

    /// Replaces the value in place, or adds the key at the end of its section, or the section at the end.
    /// Sections and keys are compared without regard to case; of two equal keys the first counts.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// Writes the file when something was set. False when it could not be written; the old file then stands.
    bool save();

private:
    std::filesystem::path path_;
    std::vector<std::string> lines_; // without line ends
    bool changed_ = false;
};

} // namespace ventrel
