// A shift as it went: its facts, and every event of it in words.
//
// A plain value, written by the ShiftLog and read by everybody who shows it. It needs no game: it tells of
// its shift also when the next has begun elsewhere.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "sim/game.h"

namespace ventrel {

enum class LogKind {
    line,   ///< of the ticker
    call,   ///< of a pilot
    order,  ///< of the player
    points, ///< a change of the score
};

struct LogEntry {
    LogKind kind = LogKind::line;
    ClockSeconds clock;
    std::optional<FlightIndex> flight{}; ///< none: it is about the shift
    std::optional<FlightIndex> other{};  ///< of a near miss
    std::string words;
    MessageClass messageClass = MessageClass::information; ///< of a line
    bool wasDropped = false;                               ///< a line of the ticker that was never shown
    int points = 0;                                        ///< of a change of the score
};

struct PointsChange {
    ClockSeconds clock;
    ScoreChange change;
    int before = 0; ///< the score until then
};

struct NearMiss {
    ClockSeconds clock;
    FlightIndex mover;
    FlightIndex other;
    Cell cell; ///< of the mover
    int altitude = 0;
};

/// How a flight has ended.
enum class FlightEnd {
    none, ///< it has not come yet, or is still there
    landed,
    left,
    lost,
    collided,
};

struct FlightStory {
    std::string callsign;
    std::string from; ///< the airport's short name; empty: it enters at the edge
    std::string to;
    ClockSeconds scheduled;
    std::optional<ClockSeconds> appeared{};
    std::optional<ClockSeconds> ended{};
    FlightEnd end = FlightEnd::none;
    int orders = 0;
    int points = 0; ///< that it brought and cost, with the price of its orders
};

/// A map point, for a small map.
struct PlaceStory {
    std::string ident;
    Cell cell;
    bool isAirport = false;
};

enum class ShiftEnd {
    running,
    everyFlightHandled,
    collision,
    givenUp,
    left, ///< of a replay no more was watched, or there is no more
};

struct ShiftStory {
    std::string airspace;
    std::string controller;
    Skill skill = Skill::normal;
    std::uint32_t seed = 0; ///< of the generator at the set-up: the same shift comes of it again
    ClockSeconds length;
    int possibleScore = 0;
    int freeOrders = 0; ///< at the start
    std::vector<PlaceStory> places;

    std::vector<FlightStory> flights; ///< in the order of their numbers
    std::vector<LogEntry> entries;
    std::vector<PointsChange> changes; ///< with the free orders, which change nothing
    std::vector<NearMiss> nearMisses;
    std::optional<Cell> collisionCell{};
    ClockSeconds clock; ///< of what came last
    int score = 0;
    ShiftEnd end = ShiftEnd::running;

    /// Whether there has been any.
    bool exists() const { return !flights.empty(); }
    const FlightStory& flight(FlightIndex index) const { return flights[index.place()]; }
};

} // namespace ventrel
