#include "story/shift_words.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "sim/phrase.h"
#include "sim/reports.h"

namespace ventrel {

namespace {

constexpr std::size_t kindWidth = 7;

constexpr std::array<std::string_view, 4> lampTexts{"green on", "yellow on", "red on", "off"};

std::string_view whyWords(ScoreCause cause) {
    const auto row = std::ranges::find(causeWords, cause, &CauseWords::cause);
    return row == causeWords.end() ? std::string_view{} : row->why;
}

} // namespace

std::string setUpWords(const Game& game) {
    return FormatText("%s: %d flights within %s, %d points possible",
                      {game.airspace->name, long{game.planeCount()},
                       FormatMinutesSeconds(game.shiftLength.count()), long{game.possibleScore}});
}

std::string orderWords(const Game& game, FlightIndex flight, const PanelOrder& order) {
    const std::string_view callsign = game.flight(flight).callsign;
    constexpr std::array<std::string_view, 3> speeds{"slow", "normal", "fast"};
    if (game.flight(flight).groundState != GroundState::airborne) {
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

std::string callWords(const Game& game, const RadioCall& call) {
    return phraseAsWords(radioPhrase(game, call));
}

std::string_view lampWords(LampLevel lit) {
    return lampTexts.at(static_cast<std::size_t>(lit));
}

std::string scoreWords(const ScoreChange& change) {
    return FormatText(change.delta < 0 ? "%d, now %d (%s)" : "+%d, now %d (%s)",
                      {long{change.delta}, long{change.score}, whyWords(change.cause)});
}

std::string withCallsign(std::string scoreWords, std::string_view callsign) {
    return std::move(scoreWords) + ", " + std::string(callsign);
}

std::string collisionWords(const Game& game) {
    return FormatText("Mid-air collision of %s and %s.",
                      {std::string_view{game.flight(game.collisionFlights[0]).callsign},
                       std::string_view{game.flight(game.collisionFlights[1]).callsign}});
}

std::string logLine(ClockSeconds clock, std::string_view kind, std::string_view words) {
    std::string line = FormatMinutesSeconds(clock.count()) + "  ";
    line += kind;
    line.append(kindWidth - kind.size(), ' ');
    line += words;
    return line;
}

} // namespace ventrel
