// The player's own finished shifts, in the file shifts.txt: for comparing the next with those before it.
//
// The file is read for every question and written whole for every change. Its form: docs/formats.md.

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "story/shift_story.h"

namespace ventrel {

inline constexpr std::string_view historyFileName = "shifts.txt";

/// A finished shift in a line.
struct PastShift {
    std::string date; ///< year-month-day hour:minute, where the player was
    std::string airspace;
    Skill skill = Skill::normal;
    int score = 0;
    int possibleScore = 0;
    int handled = 0; ///< flights that landed or left as they should
    int flights = 0;
    int nearMisses = 0;
    bool collided = false;
    std::uint32_t seed = 0;
    std::string controller;

    friend bool operator==(const PastShift&, const PastShift&) = default;
};

/// The line of a shift that is over.
PastShift pastShiftOf(const ShiftStory& story, std::string date);

/// All of them, the oldest first; none without a file. Fails, naming the line, when one cannot be understood.
Result<std::vector<PastShift>> readShiftHistory(const std::filesystem::path& file);

/// Adds one as the latest. Of very many the oldest are forgotten. A file that cannot be read is left as it
/// is.
Result<> addToShiftHistory(const std::filesystem::path& file, const PastShift& shift);

/// Those that can be compared with this one: of its airspace and level, of a Custom shift also with as many
/// flights, the oldest first.
std::vector<PastShift> comparableShifts(const std::vector<PastShift>& history, const PastShift& shift);

} // namespace ventrel
