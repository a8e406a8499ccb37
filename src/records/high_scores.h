// The ten best scores, in the file hiscore.dat.
//
// The file is read for every question and written whole for every change; nothing of it is kept in between.
// Its layout (docs/formats.md) is ten records of 104 bytes, the best first. What the program does not change
// keeps its bytes.

#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace ventrel {

inline constexpr std::string_view highScoreFileName = "hiscore.dat";
inline constexpr int highScoreRows = 10;

struct HighScoreEntry {
    std::string name;    ///< of the controller
    int score = 0;       ///< 1 to 65535; 0: an empty row
    std::string airport; ///< the airspace's name

    friend bool operator==(const HighScoreEntry&, const HighScoreEntry&) = default;
};
using HighScores = std::array<HighScoreEntry, highScoreRows>;

/// Makes an empty table where there is no file. Fails when it cannot be made; a file that is there is not
/// touched.
Result<> makeHighScoreFile(const std::filesystem::path& file);

/// Fails when the file cannot be read, or has not the length of a table.
Result<HighScores> readHighScores(const std::filesystem::path& file);

/// Where a score has come to stand.
struct HighScorePlace {
    std::optional<int> row; ///< from 0; none: it has no place in the table
    Result<> saved;         ///< why the table could not be written
};

/// Enters a score, of which the low 16 bits count; none of 0 ever gets in, nor one that only equals the
/// lowest of ten. Fails when the table cannot be read.
Result<HighScorePlace> InsertHighScore(const std::filesystem::path& file, const HighScoreEntry& entry);

/// Empties the table.
Result<> deleteHighScores(const std::filesystem::path& file);

} // namespace ventrel
