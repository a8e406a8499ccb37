// What a shift comes to: its story added up, as facts and words for a report.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "story/shift_story.h"

namespace ventrel {

std::string_view skillName(Skill skill);

/// A line of the table of points.
struct CauseRow {
    std::string_view cause;
    int count = 0;
    int points = 0;
};

/// What brought and cost points, with what it came to: the causes that occurred, and last, when a penalty
/// found too few points, those that were spared. All rows together are the score.
std::vector<CauseRow> pointsByCause(const ShiftStory& story);

/// How the shift stands or has ended, in a sentence.
std::string verdictOf(const ShiftStory& story);

/// What was good and what was bad, the weightiest first: a sentence each.
std::vector<std::string> remarksOn(const ShiftStory& story);

/// What became of a flight, in a few words.
std::string endWords(const FlightStory& flight);

/// Flights that have landed or left as they should.
int handledCount(const ShiftStory& story);

/// The score after a change of it.
struct CurvePoint {
    ClockSeconds clock;
    int score = 0;
};

/// From 0 points at the start to what is known last; between two points the score stays.
std::vector<CurvePoint> scoreCurve(const ShiftStory& story);

/// A number of points with a comma between its thousands.
std::string pointsText(int points);

} // namespace ventrel
