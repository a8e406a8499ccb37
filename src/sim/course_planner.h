// The course planner: turns orders and automatic courses into queues of plan steps.
//
// From one step to the next the heading changes by at most 45 degrees and the altitude by at most 1. Every
// builder starts from the flight's present step, which becomes step 0, and leaves the flight standing on it.

#pragma once

#include <span>

#include "sim/flight.h"
#include "sim/grid.h"
#include "sim/vor.h"

namespace ventrel {

/// A course to a map point, arriving at `altitude`; speed and hold stay. It circles back while the altitude
/// is not reached over the target. False, with nothing changed, when the target is beside the flight already.
bool buildCourse(Flight& flight, std::span<const Vor> vors, PointIndex target, int altitude);

/// The same course by order, with a speed; the caller has refused targets that are beside the flight.
void planDirect(Flight& flight, std::span<const Vor> vors, PointIndex target, int altitude, Speed speed);

/// A turn the shorter way (left for a reversal) and a climb or descent; after it the flight flies straight
/// on. The cells of the appended steps are found when the flight moves onto them.
void planTurn(Flight& flight, int heading, int altitude, Speed speed);

/// One clockwise circle of eight moves back to the present cell and heading, changing altitude on the way.
void planHold(Flight& flight, int altitude);

} // namespace ventrel
