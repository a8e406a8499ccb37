// Strict access to a TOML table: every key has its type, a missing one is refused, and so is one that nobody
// asked for. Faults are gathered, so that an author sees them all at once; what was refused reads as nothing.

#pragma once

#include <toml++/toml.h>

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/colour.h"
#include "base/geometry.h"
#include "tools/apt/faults.h"

namespace ventrel::apt {

class TableReader {
public:
    /// `table` and `faults` outlive the reader. `what` names the table in messages, such as "point 3".
    TableReader(const toml::table& table, Faults& faults, std::string what);

    bool has(std::string_view key) const { return table_.contains(key); }
    /// Whether nothing was refused so far.
    bool isSound() const { return isSound_; }
    KeyLines lines() const;

    /// A text in Windows-1252 of 1 to `longest` characters; empty when it was refused.
    std::string text(std::string_view key, std::size_t longest);
    int integer(std::string_view key, int lowest, int highest);
    double real(std::string_view key, double lowest, double highest);
    bool flag(std::string_view key, bool missing);
    /// "#rrggbb".
    Colour colour(std::string_view key);
    Point pair(std::string_view key, int lowest, int highest);
    /// A list of [latitude, longitude], one at least.
    std::vector<std::pair<double, double>> places(std::string_view key, std::size_t most);
    /// A table, or nothing.
    const toml::table* table(std::string_view key);
    /// An array of tables, or nothing.
    const toml::array* tables(std::string_view key);

    /// Refuses the keys that were not read.
    void finish();

    /// Refuses the table, or its value of that key, at its line.
    void fail(const std::string& reason, std::string_view key = {});

private:
    const toml::node* node(std::string_view key);
    void failAt(const toml::source_region& place, const std::string& reason);

    const toml::table& table_;
    Faults& faults_;
    std::string what_;
    bool isSound_ = true;
    std::set<std::string, std::less<>> read_;
};

/// The line of a place in a source.
int lineOf(const toml::source_region& place);

} // namespace ventrel::apt
