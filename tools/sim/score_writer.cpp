#include "tools/sim/score_writer.h"

#include "base/format.h"
#include "base/windows1252.h"
#include "story/shift_report.h"

namespace ventrel {

namespace {

std::string_view outcomeText(const RunResult& result) {
    if (!result) {
        return "not at its end";
    }
    return *result == ShiftResult::collision ? "collision" : "every flight handled";
}

std::string_view kindText(ReplayKind kind) {
    switch (kind) {
    case ReplayKind::scored: return "shift";
    case ReplayKind::practice: return "practice";
    case ReplayKind::day: return "Shift of the Day";
    }
    return {};
}

/// What was played, when and by whom: a score says little without it.
std::string originText(const ReplayHeader& replay) {
    const UtcDate date = std::chrono::floor<std::chrono::days>(replay.begun);
    return FormatText("%s of %s, %s, seed %s, %s",
                      {kindText(replay.kind), dateText(date), skillName(replay.skill),
                       std::to_string(replay.seed), replay.controllerName});
}

} // namespace

void ScoreWriter::runEnded(const RunResult& result) {
    std::string line =
        FormatText("%s: %d of %d points, %s", {game().airspace->name, long{game().score},
                                               long{game().possibleScore}, outcomeText(result)});
    if (replay_ != nullptr) {
        line += " (" + originText(*replay_) + ")";
    }
    output_ << toTerminal(line);
    output_.endLine();
}

} // namespace ventrel
