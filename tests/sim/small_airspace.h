// A small airspace for tests: its airport file as bytes, a game with it loaded, and a record of what happens.

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sim/airport_loading.h"
#include "sim/phrase.h"
#include "sim/schedule.h"
#include "sim/simulation.h"

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

    /// A complete file of the small layout, with a picture of a few bytes.
    std::vector<std::byte> file() const;

    /// A game with this airport in use and no shift yet.
    GameState game(std::uint32_t seed = 1) const;

private:
    std::vector<Vor> points_;
};

void putWord(std::vector<std::byte>& file, std::size_t offset, unsigned value);
void putDoubleWord(std::vector<std::byte>& file, std::size_t offset, std::uint32_t value);

/// Collects reports instead of showing them.
struct Reports {
    std::vector<std::string> texts;
    FailureReporter reporter() {
        return [this](std::string_view text, MessageIcon) { texts.emplace_back(text); };
    }
};

/// Writes everything that happens as one line each, in order: "13 text", "radio words", "lamp 1", "score -100
/// = 0", "sent 0", "panel", "strips", "select 0", "ended -1".
class EventLog final : public SimulationEvents {
public:
    std::vector<std::string> lines;

    /// The lines so far, and forgets them.
    std::vector<std::string> take() { return std::exchange(lines, {}); }

private:
    template <typename Value>
    static std::string number(Value value) {
        return std::to_string(static_cast<int>(value));
    }

    void messagePosted(std::string_view text, MessageClass messageClass) override {
        lines.push_back(number(messageClass) + " " + std::string{text});
    }
    void pilotSpoke(const RadioCall& call) override {
        lines.push_back((call.noise ? "radio " : "quiet radio ") + phraseAsWords(call.phrase));
    }
    void scoreChanged(int delta, int score) override {
        lines.push_back("score " + number(delta) + " = " + number(score));
    }
    void lampChanged(LampLevel lit) override { lines.push_back("lamp " + number(lit)); }
    void orderSent(FlightIndex flight) override { lines.push_back("sent " + number(flight)); }
    void panelChanged() override { lines.emplace_back("panel"); }
    void stripsChanged() override { lines.emplace_back("strips"); }
    void selectionWanted(FlightIndex flight) override { lines.push_back("select " + number(flight)); }
    void shiftEnded(ShiftResult result) override { lines.push_back("ended " + number(result)); }
};

/// A running game in the usual airspace with hand-made flights.
struct TestGame {
    GameState game;
    AlertLamps lamps;
    RandomGenerator random;
    EventLog events;
    Simulation simulation{game, lamps, random, events};

    explicit TestGame(const SmallAirspace& airspace = SmallAirspace::usual());

    /// An airborne flight, active since 30, bound for a map point. Its callsign is "F" and its number.
    Flight& fly(Cell cell, int altitude, int heading, VorIndex destination);
    /// A departure waiting at the airport since 30.
    Flight& wait(VorIndex origin, VorIndex destination);
    /// One acting step and the lamps' frame after it; what happened.
    std::vector<std::string> step(ClockSeconds now);
    std::vector<std::string> steps(ClockSeconds from, ClockSeconds to);
};

using Lines = std::vector<std::string>;

} // namespace ventrel
