// A lesson: a practice shift whose flights are written down, and the steps through which the player is led.
//
// Plain values, read from a text (lesson_file.h). Flights go by the letter that the text gives them, map
// points by their idents; lesson_check.h tells whether an airspace has them.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "sim/clock_seconds.h"
#include "sim/plan.h"

namespace ventrel {

/// A flight of the lesson: where it appears, when, and where it must go.
struct LessonFlight {
    char letter = 'A';              ///< A, B, C ... in the order of the text
    std::optional<ClockSeconds> at; ///< none: when a step brings it
    std::string from;               ///< the airport of a departure; empty for one that comes in from the edge
    Cell cell{};                    ///< of one from the edge, and how it flies there
    int heading = 0;
    int altitude = 0;
    bool isDirect = false; ///< it comes in on a direct course to its end
    std::string to;
    bool isHeavy = false;
};

/// Something that is so or is not. The first ones are about one flight.
enum class Fact {
    active,   ///< it is in the game: on the scope, or asking for take-off
    selected, ///< it stands on the control panel
    // What the panel holds for it, sent or not.
    panelAltitude,
    panelHeading,
    panelDirect,
    panelHold,
    panelSpeed,
    // What it has been told and flies, or is about to.
    toldAltitude,
    toldHeading,
    toldDirect,
    toldHold,
    toldSpeed,
    waiting, ///< for its take-off
    rolling, ///< cleared, and not yet in the air
    airborne,
    atAltitude,
    atHeading,
    inLine,  ///< on the line that leads through the approach cone of an airport
    within,  ///< at most so many cells from a point, as a king moves
    onFinal, ///< in line with the runway in use of an airport, on its heading
    moved,   ///< at least so many moves since the step began, or its latest order
    landed,
    left,
    lost,
    gone, ///< one of these three
    // What befell it in this step, until its next order.
    missedHeading,  ///< over its airport, not on the runway's heading
    missedAltitude, ///< over its airport, too high
    missedExit,     ///< over its exit, too low
    refusedDirect,  ///< too close for it
    nearMiss,       ///< its own, or the other's
    ordered,        ///< an order was sent to it in this step, whatever it says
    // About no flight.
    paused,
    skipped,  ///< the clock was sent on in this step
    read,     ///< the note's button was pressed
    collided, ///< two aircraft have met
    ended,    ///< every flight has been handled
};

/// One fact of a condition. What its kind does not ask for is empty.
struct FactTerm {
    Fact fact = Fact::read;
    bool isNegated = false;
    std::optional<std::size_t> flight{}; ///< its place in the lesson
    int number = 0;                      ///< altitude, heading, cells or moves
    std::string point{};                 ///< empty for a direct course to any point
    Speed speed = Speed::normal;
};

/// Holds when all of its terms do.
using FactTerms = std::vector<FactTerm>;
/// Holds when one of these does; never without any.
using Condition = std::vector<FactTerms>;

/// What the player is shown while a condition holds, in place of the step's own words.
struct LessonAnswer {
    Condition when;
    std::string text;
    bool stops = false; ///< the lesson cannot go on; it can be begun again
};

/// Where the player shall look.
enum class DeskPart {
    nothing,
    flight, ///< on the scope
    strip,  ///< with its button
    point,
    cone, ///< of an airport
    strips,
    panel,
    dial,
    altitude, ///< the scale, or one bar of it
    speed,    ///< the lamps, or one
    direct,
    target, ///< the arrows that choose where a direct course leads
    preview,
    exec,
    clock,
    ticker,
    lamps,
    score,
};

struct LessonSpot {
    DeskPart part = DeskPart::nothing;
    std::optional<std::size_t> flight{};
    std::string point{};
    int number = 0;               ///< the altitude of a bar; 0: the whole scale
    std::optional<Speed> speed{}; ///< the one lamp; none: all
};

/// Where the player shall look while something is so.
struct LessonShow {
    LessonSpot spot{};
    Condition when{}; ///< empty: always
};

/// One thing to do. The last step of a lesson has no `until`: it is reached, and the lesson is done.
struct LessonStep {
    std::string text;
    std::vector<LessonShow> shows{}; ///< the last one that holds counts
    Condition until{};
    std::vector<LessonAnswer> answers{};
    std::vector<std::size_t> brought{}; ///< flights that come in, or ask for take-off, when it begins
};

struct Lesson {
    std::string name;
    std::string about; ///< what one learns
    std::string airspace;
    std::uint32_t seed = 0;
    std::vector<LessonFlight> flights;
    std::vector<LessonAnswer> answers; ///< in every step
    std::vector<LessonStep> steps;
};

/// Characters that the texts may have, so that they fit where they are shown.
inline constexpr std::size_t longestLessonName = 22;
inline constexpr std::size_t longestLessonAbout = 220;
inline constexpr std::size_t longestNoteText = 240;

} // namespace ventrel
