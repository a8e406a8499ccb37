// The finished shifts of the player, kept for comparing the next ones with them.

#pragma once

#include <optional>
#include <string>

#include "base/utc_time.h"
#include "story/shift_history.h"

namespace ventrel {

struct Shell;

/// What has become of the last finished shift.
struct ShiftKeeping {
    std::optional<PastShift> kept; ///< as it stands in the list
    std::string trouble;           ///< why it could not be kept
    std::string replayed;          ///< when the shift was begun, where it is a replay's; as localTime tells
};

/// The shift is over: its line is added to the list. A practice shift has none. Of a failure the report
/// tells: nothing comes between a shift and its end.
void keepFinishedShift(Shell& shell);

/// A moment as a date and a time of day where the player is: "2026-11-25 12:30".
std::string localTime(UtcMoment moment);

/// The finished shifts that this one can be compared with, without itself; of a replay's those before it.
Result<std::vector<PastShift>> earlierShifts(const Shell& shell);

/// When the shift was played: its end, the beginning of a replay's, or today.
std::string shiftDate(const Shell& shell);

} // namespace ventrel
