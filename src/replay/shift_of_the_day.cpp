#include "replay/shift_of_the_day.h"

#include <algorithm>

#include "base/format.h"
#include "story/shift_report.h"

namespace ventrel {

namespace {

constexpr std::uint64_t airspaceStride = 7; // shares no factor with their number, so that each has its turn
constexpr std::uint32_t seedFactor = 2'654'435'761;

/// From Sunday on, as `std::chrono::weekday` counts.
constexpr std::array weekdaySkills{Skill::hard,   Skill::easy,     Skill::normal, Skill::moderate,
                                   Skill::normal, Skill::moderate, Skill::hard};

} // namespace

ShiftOfTheDay shiftOfTheDay(UtcDate date) {
    const auto days = static_cast<std::uint64_t>(date.time_since_epoch().count());
    return {.date = date,
            .airspace = shippedAirspaces.at((days * airspaceStride) % shippedAirspaces.size()),
            .skill = weekdaySkills.at(std::chrono::weekday{date}.c_encoding()),
            .seed = static_cast<std::uint32_t>(days) * seedFactor};
}

std::string airspaceFileOf(const ShiftOfTheDay& day, int windowWidth) {
    return std::string{day.airspace} + (windowWidth == largeLayout.windowWidth ? "10" : "8") + ".apt";
}

void setUpAsOfTheDay(ShiftSetup& setup, const ShiftOfTheDay& day) {
    setup.skill = day.skill;
    setup.cloudCover = day.skill != Skill::easy;
    setup.directEntry = true;
    setup.voiceSetCount = std::max(setup.voiceSetCount, 1);
}

Result<> provenOfTheDay(const ReplayHeader& header) {
    if (header.kind != ReplayKind::day) {
        return {};
    }
    const ShiftOfTheDay day = shiftOfTheDay(std::chrono::floor<std::chrono::days>(header.begun));
    ShiftSetup wanted = setupFrom(header);
    setUpAsOfTheDay(wanted, day);
    const bool isIt = header.seed == day.seed && header.airspaceFile == airspaceFileOf(day, header.width) &&
                      header.skill == wanted.skill && header.cloudCover == wanted.cloudCover &&
                      header.directEntry == wanted.directEntry &&
                      header.voiceSetCount == wanted.voiceSetCount;
    if (!isIt) {
        return failed("This is not the Shift of the Day of " + dateText(day.date) + ".");
    }
    return {};
}

std::string dayResultText(const ShiftOfTheDay& day, std::string_view airspace, int score, int possible,
                          bool isCollision) {
    return FormatText(isCollision ? "Ventrel Shift of the Day %s: %s, %s, a collision after %d of %d points"
                                  : "Ventrel Shift of the Day %s: %s, %s, %d of %d points",
                      {dateText(day.date), airspace, skillName(day.skill), long{score}, long{possible}});
}

} // namespace ventrel
