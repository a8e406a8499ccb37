#include "tools/sim/score_writer.h"

#include "base/format.h"
#include "base/windows1252.h"

namespace ventrel {

namespace {

std::string_view outcomeText(const RunResult& result) {
    if (!result) {
        return "not at its end";
    }
    return *result == ShiftResult::collision ? "collision" : "every flight handled";
}

} // namespace

void ScoreWriter::runEnded(const RunResult& result) {
    output_ << toTerminal(
        FormatText("%s: %d of %d points, %s", {game().airspace->name, long{game().score},
                                               long{game().possibleScore}, outcomeText(result)}));
    output_.endLine();
}

} // namespace ventrel
