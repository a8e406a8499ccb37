#include "tools/sim/log_writer.h"

#include <array>

#include "base/format.h"
#include "base/windows1252.h"
#include "sim/phrase.h"
#include "sim/shift_texts.h"

namespace ventrel {

namespace {

constexpr std::size_t kindWidth = 7;
constexpr ClockSeconds scoreReportInterval = 900;

constexpr std::array<std::string_view, 4> lampTexts{"green on", "yellow on", "red on", "off"};

std::string describeOrder(const GameState& game, const Flight& flight, const PanelOrder& order) {
    constexpr std::array<std::string_view, 3> speeds{"slow", "normal", "fast"};
    if (flight.groundState != GroundState::airborne) {
        return FormatText("%s, cleared for takeoff", {flight.callsign});
    }
    const auto speed = speeds.at(static_cast<std::size_t>(order.speed - slowSpeed));
    if (order.directTarget == noVor) {
        return FormatText("%s, heading %d at %dK, %s",
                          {flight.callsign, long{order.heading}, long{order.altitude}, speed});
    }
    if (order.hold != 0) {
        return FormatText("%s, hold at %dK", {flight.callsign, long{order.altitude}});
    }
    return FormatText("%s, direct to %s at %dK, %s",
                      {flight.callsign, game.vor(order.directTarget).ident, long{order.altitude}, speed});
}

} // namespace

void LogWriter::line(std::string_view kind, std::string_view text) {
    output_ << FormatMinutesSeconds(clock()) << "  " << kind;
    output_ << std::string(kindWidth - kind.size(), ' ');
    output_ << toTerminal(text);
    output_.endLine();
}

void LogWriter::messagePosted(std::string_view text, MessageClass) {
    line("", text);
}

void LogWriter::pilotSpoke(const RadioCall& call) {
    line("radio", phraseAsWords(call.phrase));
}

void LogWriter::lampChanged(LampLevel lit) {
    line("lamp", lampTexts.at(static_cast<std::size_t>(lit)));
}

void LogWriter::scoreChanged(int delta, int score) {
    line("score", FormatText(delta < 0 ? "%d, now %d" : "+%d, now %d", {long{delta}, long{score}}));
}

void LogWriter::shiftSetUp(const GameState& game) {
    line("", FormatText("%s: %d flights within %s, %d points possible",
                        {game.airport.name, long{game.planeCount()}, FormatMinutesSeconds(game.shiftLength),
                         long{game.possibleScore}}));
    line("", welcomeText(game));
}

void LogWriter::orderGiven(const GameState& game, FlightIndex flight, const PanelOrder& order) {
    line("order", describeOrder(game, game.flight(flight), order));
}

void LogWriter::stepTaken(const GameState& game) {
    if (clock() != 0 && clock() % scoreReportInterval == 0) {
        line("", scoreSoFarText(game));
    }
}

void LogWriter::runEnded(const GameState& game, const RunResult& result) {
    if (!result) {
        line("", "The time is up.");
    } else if (*result == ShiftResult::collision) {
        line("",
             FormatText("Mid-air collision of %s and %s.", {game.flight(game.collisionFlights[0]).callsign,
                                                            game.flight(game.collisionFlights[1]).callsign}));
    }
    line("", gameOverText(game));
}

} // namespace ventrel
