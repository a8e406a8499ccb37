#include "shell/finished_shifts.h"

#include <ctime>

#include "base/format.h"
#include "shell/shell.h"

namespace ventrel {

namespace {

std::string dateOf(const std::tm& day) {
    constexpr int firstYear = 1900; // from which `std::tm` counts
    return FormatText("%04d-%02d-%02d %02d:%02d", {long{firstYear + day.tm_year}, long{1 + day.tm_mon},
                                                   long{day.tm_mday}, long{day.tm_hour}, long{day.tm_min}});
}

} // namespace

std::string localTime(UtcMoment moment) {
    const std::time_t time = std::chrono::system_clock::to_time_t(moment);
    std::tm day{};
    localtime_r(&time, &day);
    return dateOf(day);
}

void keepFinishedShift(Shell& shell) {
    shell.keeping = {.kept = {}, .trouble = {}, .replayed = std::move(shell.keeping.replayed)};
    if (shell.shiftKind == ShiftKind::practice) {
        return;
    }
    const PastShift shift = pastShiftOf(shell.log.story(), dateOf(shell.desktop.backend().today()));
    const Result<> added = shell.playerFolder.empty()
                               ? failed("There is no folder to keep your shifts in.")
                               : addToShiftHistory(shell.playerFolder / historyFileName, shift);
    if (added) {
        shell.keeping.kept = shift;
    } else {
        shell.keeping.trouble = added.error().text;
    }
}

Result<std::vector<PastShift>> earlierShifts(const Shell& shell) {
    if (shell.playerFolder.empty()) {
        return std::vector<PastShift>{};
    }
    auto history = readShiftHistory(shell.playerFolder / historyFileName);
    if (!history) {
        return history;
    }
    auto earlier = comparableShifts(*history, pastShiftOf(shell.log.story(), {}));
    if (!earlier.empty() && earlier.back() == shell.keeping.kept) {
        earlier.pop_back();
    }
    if (const std::string& begun = shell.keeping.replayed; !begun.empty()) {
        std::erase_if(earlier, [&begun](const PastShift& past) { return past.date >= begun; });
    }
    return earlier;
}

std::string shiftDate(const Shell& shell) {
    if (!shell.keeping.replayed.empty()) {
        return shell.keeping.replayed;
    }
    return shell.keeping.kept ? shell.keeping.kept->date : dateOf(shell.desktop.backend().today());
}

} // namespace ventrel
