#include "tools/sim/log_writer.h"

#include "base/windows1252.h"
#include "sim/reports.h"
#include "sim/shift_texts.h"
#include "story/shift_words.h"

namespace ventrel {

namespace {

constexpr ClockSeconds scoreReportInterval = 900_s;

} // namespace

void LogWriter::line(std::string_view kind, std::string_view text) {
    output_ << toTerminal(logLine(game().clock, kind, text));
    output_.endLine();
}

void LogWriter::reported(const Report& report) {
    line("", reportText(game(), report));
}

void LogWriter::called(const RadioCall& call) {
    line("radio", callWords(game(), call));
}

void LogWriter::lampChanged(LampLevel lit) {
    line("lamp", lampWords(lit));
}

void LogWriter::scoreChanged(const ScoreChange& change) {
    const std::string words = scoreWords(change);
    line("score", change.flight ? withCallsign(words, game().flight(*change.flight).callsign) : words);
}

void LogWriter::shiftSetUp() {
    line("", setUpWords(game()));
    line("", welcomeText(game()));
}

void LogWriter::orderGiven(FlightIndex flight, const PanelOrder& order) {
    line("order", orderWords(game(), flight, order));
}

void LogWriter::stepTaken() {
    if (game().clock != 0_s && game().clock % scoreReportInterval == 0_s) {
        line("", scoreSoFarText(game()));
    }
}

void LogWriter::runEnded(const RunResult& result) {
    if (!result) {
        line("", "The time is up.");
    } else if (*result == ShiftResult::collision) {
        line("", collisionWords(game()));
    }
    line("", gameOverText(game()));
}

} // namespace ventrel
