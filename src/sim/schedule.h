// The schedule: everything that a shift will bring, drawn at random once before it starts.
//
// How many flights, of which kind, when and where each appears, where it must go, its callsign and pilot, and
// what the shift is worth. The flight step then plays the schedule on the clock.

#pragma once

#include "base/random.h"
#include "sim/game_state.h"
#include "sim/options.h"

namespace ventrel {

enum class Skill { easy = 0, normal = 1, moderate = 2, hard = 3, custom = 4 };

/// The size of the shift of a skill level, and its bonus before the options change it. The numbers of a
/// Custom shift come from the options, brought into the range that the dialog allows.
struct ShiftSize {
    int planeCount = 0;
    ClockSeconds shiftLength = 0;
    int bonus = 0;
};
ShiftSize shiftSizeFor(Skill skill, const Options& options);

/// What the schedule needs to know from outside.
struct ShiftSetup {
    Skill skill = Skill::normal;
    int voiceSetCount = 0; ///< installed pilot voices; with 0 every flight gets voice 0
    /// Pixel sizes of the cloud pictures, by number; a missing one counts as empty.
    std::span<const Size> cloudSizes{};
};

/// Replaces the shift entirely. The airport has been loaded. No game runs yet.
void setUpShift(GameState& game, const ShiftSetup& setup, const Options& options, RandomGenerator& random);

/// What a map point is looked for as.
enum class VorKind { exit = 1, departureAirport = 2, arrivalAirport = 3 };

/// Draws a map point of that kind; major airports are favoured for arrivals. The airport has one of each.
VorIndex pickVor(const GameState& game, VorKind kind, RandomGenerator& random);

/// Step 0 of the flight's plan: on its airport's runway, or at a random place on a side of the scope away
/// from its destination; there with `directEntry` on a course for the destination.
void placeFlight(const GameState& game, Flight& flight, bool directEntry, RandomGenerator& random);

/// Draws callsign, radio id and whether the flight is heavy. Its origin and destination are set.
void makeCallsign(const GameState& game, Flight& flight, RandomGenerator& random);

} // namespace ventrel
