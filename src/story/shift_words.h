// What happens in a shift, in words: those of the log, wherever it is read.
//
// All texts are Windows-1252.

#pragma once

#include <array>
#include <string>
#include <string_view>

#include "sim/game.h"

namespace ventrel {

/// Why points came or went: as a change of the score says it, and as a table of the causes is headed.
struct CauseWords {
    ScoreCause cause;
    std::string_view why;
    std::string_view heading;
};
/// In the order of such a table.
inline constexpr std::array causeWords{std::to_array<CauseWords>({
    {ScoreCause::landing, "landed", "Landings"},
    {ScoreCause::exit, "left over its exit", "Exits"},
    {ScoreCause::bonus, "bonus", "Bonus"},
    {ScoreCause::nearMiss, "near miss", "Near misses"},
    {ScoreCause::lost, "lost", "Flights lost"},
    {ScoreCause::missedApproach, "missed approach", "Missed approaches"},
    {ScoreCause::missedExit, "missed its exit", "Missed exits"},
    {ScoreCause::keptWaiting, "kept waiting", "Departures kept waiting"},
    {ScoreCause::order, "order beyond the free ones", "Orders beyond the free ones"},
})};

/// The shift that has just been set up: where, how many flights, how long, and what it is worth.
std::string setUpWords(const Game& game);

/// An order as it is given, before it is carried out.
std::string orderWords(const Game& game, FlightIndex flight, const PanelOrder& order);

/// A pilot's call as it is heard.
std::string callWords(const Game& game, const RadioCall& call);

std::string_view lampWords(LampLevel lit);

/// The change of the score, what it comes to, and why.
std::string scoreWords(const ScoreChange& change);

/// The same where the flight, if it is one's, stands in no column of its own.
std::string withCallsign(std::string scoreWords, std::string_view callsign);

/// Which flights of the game collided.
std::string collisionWords(const Game& game);

/// A line of the log: the clock as minutes and seconds, the kind of the event (at most 6 characters, empty
/// for a line of the ticker), and its words.
std::string logLine(ClockSeconds clock, std::string_view kind, std::string_view words);

} // namespace ventrel
