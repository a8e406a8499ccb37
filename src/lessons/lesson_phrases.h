// The phrases of a lesson's text: flights, conditions and spots, each on what is left of a line.
//
// Whoever reads takes words off the front of a text. A phrase that is none gives a reason in words.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "lessons/lesson.h"

namespace ventrel {

/// Takes the first word off the text; empty at its end.
std::string_view takeLessonWord(std::string_view& text);

/// "A at 0:30 from 2,24 heading 90 altitude 6 to AHN", "B later from ATL to MCN heavy"; `letter` is the one
/// that must come now.
Result<LessonFlight> readLessonFlight(std::string_view text, char letter);

/// "A selected and not A told altitude 10 or A gone", of so many flights; "and" binds closer.
Result<Condition> readCondition(std::string_view text, std::size_t flights);

/// "B C"
Result<std::vector<std::size_t>> readFlights(std::string_view text, std::size_t flights);

/// "flight A", "altitude 10", "cone ATL", and perhaps a condition: "exec when A panel hold".
Result<LessonShow> readLessonShow(std::string_view text, std::size_t flights);

} // namespace ventrel
