// The schedule: everything that a shift will bring, drawn at random once before it starts.
//
// How many flights, of which kind, when and where each appears, where it must go, its callsign and pilot, and
// what the shift is worth. The flight step then plays the schedule on the clock.

#pragma once

#include "sim/game.h"

namespace ventrel {

/// Points that a Custom shift can be worth at most, up or down: so that sums of points stay numbers.
inline constexpr int mostCustomBonus = 1'000'000'000;

/// The size of the shift and its bonus before clouds and direct entry count. That of a Custom shift is
/// brought into the range of the dialog: 1 to 99 planes, 1 to 120 minutes.
ShiftSize shiftSizeFor(const ShiftSetup& setup);

/// Replaces the shift entirely, drawing from the game's generator. The game's points have been settled.
void setUpShift(Game& game, const ShiftSetup& setup);

/// What a map point is looked for as.
enum class VorKind { exit = 1, departureAirport = 2, arrivalAirport = 3 };

/// Draws a map point of that kind; major airports are favoured for arrivals. The airspace has one of each.
PointIndex pickVor(Game& game, VorKind kind);

/// The plan of a flight before it appears: on its airport's runway, or at a random place on a side of the
/// scope away from its destination; there with `directEntry` on a course for the destination.
void placeFlight(Game& game, Flight& flight, bool directEntry);

/// Draws callsign, radio id and whether the flight is heavy. Its origin and destination are set.
void makeCallsign(Game& game, Flight& flight);

} // namespace ventrel
