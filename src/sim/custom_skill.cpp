#include "sim/custom_skill.h"

namespace ventrel {

namespace {

constexpr ClockSeconds shortestShiftWithBonus = 600_s;
constexpr int longestInterval = 100; // seconds between planes, on average
constexpr int pointsPerSecond = 30;
constexpr int bonusUnit = 25; // every bonus is a multiple of it

} // namespace

int bonusFor(int planes, ClockSeconds seconds) {
    if (planes <= 0 || seconds < shortestShiftWithBonus) {
        return 0;
    }
    const int interval = seconds.count() / planes;
    if (interval > longestInterval) {
        return 0;
    }
    return bonusUnit * ((longestInterval - interval) * pointsPerSecond / bonusUnit);
}

std::optional<TextId> customShiftFault(unsigned planes, unsigned minutes) {
    if (planes == 0 || planes > mostPlanes) {
        return TextId::planesOutOfRange;
    }
    if (minutes == 0 || minutes > mostMinutes) {
        return TextId::minutesOutOfRange;
    }
    if (planes > mostPlanesPerMinute * minutes) {
        return TextId::tooManyPlanes;
    }
    return std::nullopt;
}

} // namespace ventrel
