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

#include "base/result.h"

namespace ventrel {

class ProfileFile {
public:
    /// Far above what a person writes into one.
    static constexpr std::size_t mostBytes = std::size_t{1} << 20;

    /// Reads the file. One that is missing counts as empty; one that is there and cannot be read whole, or
    /// holds more than `mostBytes`, is a failure, so that nobody takes it for empty and writes over it.
    static Result<ProfileFile> read(std::filesystem::path file);

    /// The same from a text, as if it stood in `file`.
    static ProfileFile fromText(std::filesystem::path file, std::string_view text);

    /// The whole file as it would be written.
    const std::string& toText() const { return text_; }

    /// The value as the classic profile reader takes it: an optional sign and digits; a value that does not
    /// start with a number is 0; a missing key gives `missing`. Wraps round at 32 bits.
    int integer(std::string_view section, std::string_view key, int missing) const;

    /// The value without surrounding blanks and without one pair of enclosing quotes.
    std::string text(std::string_view section, std::string_view key, std::string_view missing) const;

    /// Replaces the value in place, or adds the key at the end of its section, or the section at the end of
    /// the file. New lines end as the first line of the file does, those of a new file with "\n". Sections
    /// and keys are compared without regard to case; of two equal ones the first counts. A value with blanks
    /// or quotes at its ends is enclosed in quotes; line breaks within it become blanks.
    void set(std::string_view section, std::string_view key, std::string_view value);

    /// Writes the file when something was set, making it if need be. After a failure the old file stands.
    Result<> save();

private:
    /// Where a section has a key, as offsets into the text.
    struct Place {
        bool hasKey = false;
        std::size_t valueStart = 0; // what follows the "=" on the key's line, without the blanks around it
        std::size_t valueLength = 0;
        std::size_t insertAt = 0; // the line start at which a new key of the section goes
    };

    ProfileFile() = default;

    std::optional<Place> find(std::string_view section, std::string_view key) const;
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;
    void insertLine(std::size_t at, std::string_view line);

    std::filesystem::path path_;
    std::string text_;
    bool changed_ = false;
};

} // namespace ventrel
