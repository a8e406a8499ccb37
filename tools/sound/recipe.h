// Strict access to a recipe, a TOML text: each value has its type and its range, and what nobody asked for is
// refused. The first fault is kept and everything after it reads as harmless values, so that a recipe is read
// from top to bottom and asked once, at the end, whether it was sound.

#pragma once

#include <toml++/toml.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/result.h"

namespace ventrel::sound {

struct Range {
    double lowest, highest;
};

/// A point of a curve.
struct CurvePoint {
    double time; ///< seconds
    double value;
};
using Curve = std::vector<CurvePoint>;

class RecipeTable {
public:
    /// `file` is named in faults; `table` outlives the reader.
    RecipeTable(const toml::table& table, std::string file);

    double number(std::string_view key, Range range, std::optional<double> missing = {});
    std::string text(std::string_view key, std::optional<std::string> missing = {});
    std::vector<std::string> texts(std::string_view key);
    std::vector<double> numbers(std::string_view key, Range range);
    /// A number, which stays, or a list of `[seconds, number]`; empty where the key is missing.
    Curve curve(std::string_view key, Range range);
    bool has(std::string_view key) const { return table_.contains(key); }
    /// The tables of an array, each to be read by itself; none where the key is missing.
    std::vector<RecipeTable> tables(std::string_view key);

    /// Notes a fault of the value of that key.
    void refuse(std::string_view key, const std::string& reason);
    /// The first fault of this table, keys that nobody asked for included.
    Result<> finish();

private:
    const toml::node* node(std::string_view key);

    const toml::table& table_;
    std::string file_;
    std::set<std::string, std::less<>> read_;
    std::optional<Failure> fault_;
};

/// The text as TOML.
Result<toml::table> readRecipe(const std::filesystem::path& file);

} // namespace ventrel::sound
