// The commands of the airspace tool. Each returns the program's exit status and says on standard error what
// went wrong, naming the file. None writes over a file that it reads.

#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "tools/apt/airspace_drawing.h"

namespace ventrel::apt {

inline constexpr int success = 0;
inline constexpr int faulty = 1; ///< a source or file has problems, or could not be read or written

/// Compiles a source for the layout of that width. On failure no file is left behind, and an older one
/// stands.
int build(const std::filesystem::path& source, const std::filesystem::path& target, int width);

/// Prints every problem of every file, one a line, on standard output. A source (".toml") is checked as it
/// would be compiled for each layout that it serves.
int check(const std::vector<std::filesystem::path>& files);

/// Prints a file as a source. With `picture` the embedded picture is written there.
int show(const std::filesystem::path& file, const std::filesystem::path& picture);

/// What `draw` draws.
struct Drawing {
    std::filesystem::path file = {}; ///< a source or an airport file; empty: the blank grid
    std::filesystem::path target = {};
    std::optional<int> width = {}; ///< none: the file's own, or 800 where it has both
    GridDots dots = GridDots::hidden;
    std::filesystem::path fonts = {}; ///< the program's font folder
};

/// Writes the map, or the blank grid, as a PNG.
int draw(const Drawing& drawing);

} // namespace ventrel::apt
