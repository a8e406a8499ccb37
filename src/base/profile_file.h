// A private profile: "[section]" and "key=value" lines, as text that a person may edit.
//
// What the program does not know (comments, blank lines, other sections and keys, their order, their
// spelling) survives a rewrite as it stands. The file is written beside itself and renamed, so a full disk
// loses nothing.

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ventrel {

class ProfileFile {
public:
    /// Reads the file. One that is missing or unreadable counts as empty.
    explicit ProfileFile(std::filesystem::path file);

    /// The same from a text, as if it stood in `file`.
    static ProfileFile fromText(std::filesystem::path file, std::string_view text);

    /// The whole file as it would be written.
    std::string toText() const;

    /// The value as the classic profile reader takes it: an optional sign and digits; a value that does not
    /// start with a number is 0; a missing key gives `missing`. Wraps round at 32 bits.
    int integer(std::string_view section, std::string_view key, int missing) const;

    /// The value without surrounding blanks and without one pair of enclosing quotes.
    std::string text(std::string_view section, std::string_view key, std::string_view missing) const;

    /// Replaces the value in place, or adds the key at the end of its section, or the section at the end of
    /// the file. Sections and keys are compared without regard to case; of two equal ones the first counts. A
    /// value with blanks or quotes at its ends is enclosed in quotes; line breaks within it become blanks.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// Writes the file when something was set, making it if need be. False when it could not be written; the
    /// old file then stands.
    bool save();

private:
    struct Line {
        std::string text; // without its line end
        std::string end;  // "\n", "\r\n", or nothing at the end of a file that lacks one
    };
    struct Place {
        std::size_t sectionLine = 0;
        std::optional<std::size_t> keyLine;
        std::size_t insertBefore = 0; // where a new key of the section goes
    };

    ProfileFile() = default;

    std::optional<Place> find(std::string_view section, std::string_view key) const;
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;
    void insertLine(std::size_t before, std::string text);

    std::filesystem::path path_;
    std::vector<Line> lines_;
    std::string lineEnd_ = "\n"; // for new lines: as the file's first line has it
    bool changed_ = false;
};

} // namespace ventrel
