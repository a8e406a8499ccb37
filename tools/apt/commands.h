// The three commands of the airspace tool. Each returns the program's exit status and says on standard error
// what went wrong, naming the file.

#pragma once

#include <filesystem>
#include <vector>

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

} // namespace ventrel::apt
