#include "tools/sim/log_writer.h"

#include <array>

#include "base/format.h"
#include "base/windows1252.h"
#include "sim/phrase.h"
#include "sim/reports.h"
#include "sim/shift_texts.h"

namespace ventrel {

namespace {

constexpr std::size_t kindWidth = 7;
constexpr ClockSeconds scoreReportInterval = 900_s;

constexpr std::array<std::string_view, 4> lampTexts{"green on", "yellow on", "red on", "off"};

std::string describeOrder(const Game& game, const Flight& flight, const PanelOrder& order) {
    const std::string_view callsign = flight.callsign;
    constexpr std::array<std::string_view, 3> speeds{"slow", "normal", "fast"};
    if (flight.groundState != GroundState::airborne) {
        return FormatText("%s, cleared for takeoff", {callsign});
    }
    const auto speed =
        speeds.at(static_cast<std::size_t>(static_cast<int>(order.speed) - static_cast<int>(Speed::slow)));
    if (!order.directTarget.isOn()) {
        return FormatText("%s, heading %d at %dK, %s",
                          {callsign, long{order.heading}, long{order.altitude}, speed});
    }
    if (order.hold) {
        return FormatText("%s, hold at %dK", {callsign, long{order.altitude}});
    }
    return FormatText("%s, direct to %s at %dK, %s",
                      {callsign, std::string_view{copyVor(game, order.directTarget.point()).ident},
                       long{order.altitude}, speed});
}

} // namespace

void LogWriter::line(std::string_view kind, std::string_view text) {
    output_ << FormatMinutesSeconds(game().clock.count()) << "  " << kind;
    output_ << std::string(kindWidth - kind.size(), ' ');
    output_ << toTerminal(text);
    output_.endLine();
}

void LogWriter::reported(const Report& report) {
    line("", reportText(game(), report));
}

void LogWriter::called(const RadioCall& call) {
    line("radio", phraseAsWords(radioPhrase(game(), call)));
}

void LogWriter::lampChanged(LampLevel lit) {
    line("lamp", lampTexts.at(static_cast<std::size_t>(lit)));
}

void LogWriter::scoreChanged(const ScoreChange& change) {
    line("score", FormatText(change.delta < 0 ? "%d, now %d" : "+%d, now %d",
                             {long{change.delta}, long{change.score}}));
}

void LogWriter::shiftSetUp() {
    line("", FormatText("%s: %d flights within %s, %d points possible",
                        {game().airspace->name, long{game().planeCount()},
                         FormatMinutesSeconds(game().shiftLength.count()), long{game().possibleScore}}));
    line("", welcomeText(game()));
}

void LogWriter::orderGiven(FlightIndex flight, const PanelOrder& order) {
    line("order", describeOrder(game(), game().flight(flight), order));
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
        line("", FormatText("Mid-air collision of %s and %s.",
                            {std::string_view{game().flight(game().collisionFlights[0]).callsign},
                             std::string_view{game().flight(game().collisionFlights[1]).callsign}}));
    }
    line("", gameOverText(game()));
}

} // namespace ventrel
