// The Shift of the Day: the same airspace, level and traffic for everybody on a date of the common time.
//
// With D the days since 1970-01-01: the airspace is number 7 D modulo 16 of the shipped ones, the level hangs
// on the day of the week, and the generator starts at 2654435761 D modulo 2^32. Clouds and direct entry are
// on.

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/result.h"
#include "replay/replay.h"

namespace ventrel {

/// The airspaces that come with every copy, by the beginnings of their files' names. The order must stay.
inline constexpr std::array<std::string_view, 16> shippedAirspaces{
    "amsterdam",   "atlanta", "chicago",  "hong_kong", "johannesburg",   "london",
    "los_angeles", "miami",   "new_york", "paris",     "rio_de_janeiro", "san_francisco",
    "seattle",     "sydney",  "tokyo",    "zurich"};

struct ShiftOfTheDay {
    UtcDate date{};
    std::string_view airspace;
    Skill skill = Skill::normal;
    std::uint32_t seed = 0;
};

ShiftOfTheDay shiftOfTheDay(UtcDate date);

/// The airspace's file for a window of that width.
std::string airspaceFileOf(const ShiftOfTheDay& day, int windowWidth);

/// How everybody plays it, whatever his options and his machine: the draws of the set-up are the same with
/// any number of voices but none.
void setUpAsOfTheDay(ShiftSetup& setup, const ShiftOfTheDay& day);

/// Fails, by what differs, when the header calls its shift that of the day on which it began, and it is not.
Result<> provenOfTheDay(const ReplayHeader& header);

/// What a player tells others: "Ventrel Shift of the Day 2026-11-25: London, Hard, 5875 of 6100 points".
std::string dayResultText(const ShiftOfTheDay& day, std::string_view airspace, int score, int possible,
                          bool isCollision);

} // namespace ventrel
