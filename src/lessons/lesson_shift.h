// The shift of a lesson: set up like any other, with the flights that the lesson has written down.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lessons/lesson.h"
#include "sim/game.h"

namespace ventrel {

/// Whether every point, cell and runway that the lesson names is in the airspace, every flight can fly as it
/// is written, and every text can be filled in. The failure names what is not so.
Result<> checkLesson(const Lesson& lesson, const Airspace& airspace);

/// A running game of the lesson in its airspace, which has been checked. Layout and name are those of
/// `setup`, and the pilots speak with its voices; the same lesson gives the same flights and runways, with
/// voices and without, at both sizes.
Game makeLessonGame(const Lesson& lesson, AirspacePtr airspace, const ShiftSetup& setup);

/// The flight comes in, or asks for take-off, in the next step; nothing when it has already.
void bringFlight(Game& game, FlightIndex index);

/// The point of that ident; none where there is no such point.
std::optional<PointIndex> pointOfIdent(std::span<const Vor> points, std::string_view ident);

/// A text as the player reads it: `{A}` is the callsign of flight A, `{ATL}` the heading of the runway in use
/// at ATL.
std::string lessonText(const Game& game, std::string_view text);

} // namespace ventrel
