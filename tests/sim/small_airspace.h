// A small airspace for tests: its airport file as bytes, a game with it loaded, and a record of what happens.

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sim/airport_file.h"
#include "sim/phrase.h"
#include "sim/reports.h"
#include "sim/schedule.h"

namespace ventrel {

/// Builds an airport file map point by map point.
class SmallAirspace {
public:
    std::string name = "Testville";

    SmallAirspace& exit(std::string_view ident, Cell cell);
    SmallAirspace& airport(std::string_view ident, Cell cell, int runwayHeading);
    /// The map point added last, for anything unusual.
    Vor& last() { return points_.back(); }

    /// One airport in the middle, runway to the east, and an exit in each quarter.
    static SmallAirspace usual();
    static constexpr PointIndex mid{0}; ///< Of the usual one: the airport at (24, 24), runway to the east.
    static constexpr PointIndex northWest{1};

    /// A complete file of the small layout, with a picture of a few bytes.
    std::vector<std::byte> file() const;

    AirspacePtr load() const { return loadAirport(file(), "small.apt").value(); }
    /// A game in it whose shift has been set up.
    Game game(const ShiftSetup& setup = {}, std::uint32_t seed = 1) const {
        return {load(), setup, RandomGenerator{seed}};
    }

private:
    std::vector<Vor> points_;
};

void putWord(std::vector<std::byte>& file, std::size_t offset, unsigned value);
void putDoubleWord(std::vector<std::byte>& file, std::size_t offset, std::uint32_t value);

/// Writes everything that happens to a game as one line each, in order: "13 text", "radio words", "lamp 1",
/// "score -100 = 0", "sent 0", "panel", "strips", "active 0", "ended -1".
class EventLog final : public SimulationEvents {
public:
    explicit EventLog(const Game& game) : game_{game} {}

    std::vector<std::string> lines;

    /// The lines so far, and forgets them.
    std::vector<std::string> take() { return std::exchange(lines, {}); }

private:
    template <typename Value>
    static std::string number(Value value) {
        return std::to_string(static_cast<int>(value));
    }

    void reported(const Report& report) override {
        lines.push_back(number(reportClass(report.topic)) + " " + reportText(game_, report));
    }
    void pilotSpoke(const RadioCall& call) override {
        lines.push_back((call.hasNoise() ? "radio " : "quiet radio ") +
                        phraseAsWords(radioPhrase(game_, call)));
    }
    void scoreChanged(const ScoreChange& change) override {
        lines.push_back("score " + number(change.delta) + " = " + number(change.score));
    }
    void lampChanged(LampLevel lit) override { lines.push_back("lamp " + number(lit)); }
    void orderSent(FlightIndex flight, const PanelOrder&) override {
        lines.push_back("sent " + number(flight.number()));
    }
    void panelChanged() override { lines.emplace_back("panel"); }
    void stripsChanged() override { lines.emplace_back("strips"); }
    void flightActivated(FlightIndex flight) override {
        lines.push_back("active " + number(flight.number()));
    }
    void shiftEnded(ShiftResult result) override { lines.push_back("ended " + number(result)); }

    const Game& game_;
};

/// A running game in the usual airspace with hand-made flights.
struct TestGame {
    Game game;
    EventLog events{game};

    explicit TestGame(const SmallAirspace& airspace = SmallAirspace::usual());
    TestGame(const TestGame&) = delete;
    TestGame& operator=(const TestGame&) = delete;
    ~TestGame() = default;

    /// An airborne flight, active since 30, bound for a map point. Its callsign is "F" and its number.
    Flight& fly(Cell cell, int altitude, int heading, PointIndex destination);
    /// A departure waiting at the airport since 30.
    Flight& wait(PointIndex origin, PointIndex destination);
    /// One acting step and the frame after it; what happened.
    std::vector<std::string> step(ClockSeconds now);
    std::vector<std::string> steps(ClockSeconds from, ClockSeconds to);
};

using Lines = std::vector<std::string>;

} // namespace ventrel
