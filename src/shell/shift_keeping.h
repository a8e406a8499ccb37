// The finished shifts of the player, kept for comparing the next ones with them.

#pragma once

#include <optional>
#include <string>

#include "replay/shift_history.h"

namespace ventrel {

struct Shell;

/// What has become of the last finished shift.
struct ShiftKeeping {
    std::optional<PastShift> kept; ///< as it stands in the list
    std::string trouble;           ///< why it could not be kept
};

/// The shift is over: its line is added to the list. A practice shift has none. Of a failure the report
/// tells: nothing comes between a shift and its end.
void keepFinishedShift(Shell& shell);

/// The finished shifts that this one can be compared with, without itself.
Result<std::vector<PastShift>> earlierShifts(const Shell& shell);

/// When the shift was played: its end, or today.
std::string shiftDate(const Shell& shell);

} // namespace ventrel
