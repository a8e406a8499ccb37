// Strict access to a TOML table: every key has its type, a missing one is refused, and so is one that nobody
// asked for.

#pragma once

#include <toml++/toml.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "tools/apt/airspace_source.h"

namespace ventrel::apt {

class TableReader {
public:
    /// `table` and `file` outlive the reader. `what` names the table in messages, such as "point 3".
    TableReader(const toml::table& table, const std::filesystem::path& file, std::string what);

    bool has(std::string_view key) const { return table_.contains(key); }

    /// A text in Windows-1252 of 1 to `longest` characters.
    std::string text(std::string_view key, std::size_t longest);
    int integer(std::string_view key, int lowest, int highest);
    double real(std::string_view key, double lowest, double highest);
    bool flag(std::string_view key, bool missing);
    /// "#rrggbb".
    Colour colour(std::string_view key);
    Point pair(std::string_view key, int lowest, int highest);
    const toml::table& table(std::string_view key);
    /// An array of tables.
    const toml::array& tables(std::string_view key);

    /// Refuses the keys that were not read.
    void finish() const;

    /// Refuses the table, or its value of that key, at its line.
    [[noreturn]] void fail(const std::string& reason, std::string_view key = {}) const;

private:
    const toml::node& node(std::string_view key);

    const toml::table& table_;
    const std::filesystem::path& file_;
    std::string what_;
    std::set<std::string, std::less<>> read_;
};

/// The text of a fault at a line.
SourceFault faultAt(const std::filesystem::path& file, const toml::source_region& place,
                    const std::string& reason);

} // namespace ventrel::apt
