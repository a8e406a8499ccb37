// A short, busy shift for readers of orders.

#pragma once

#include <memory>
#include <utility>

#include "sim/game.h"

namespace ventrel {

inline constexpr ClockSeconds shortShiftEnd = 600_s;

/// Set up, in an airspace of an airport and three exits.
inline Game shortShift() {
    constexpr int eastward = 90;
    Airspace airspace;
    airspace.name = "Testville";
    airspace.layoutWidth = smallLayout.windowWidth;
    const auto add = [&airspace](const char* ident, Cell cell) -> Vor& {
        Vor& point = airspace.points.emplace_back();
        point.ident = ident;
        point.pixel = {cell.x * smallLayout.cellSize, cell.y * smallLayout.cellSize};
        return point;
    };
    Vor& middle = add("MID", {24, 24});
    middle.isAirport = true;
    middle.runwayHeading = eastward;
    add("NW", {12, 12}).isExit = true;
    add("NE", {36, 12}).isExit = true;
    add("S", {24, 36}).isExit = true;
    return {std::make_shared<const Airspace>(std::move(airspace)),
            {.skill = Skill::custom, .custom = {12, shortShiftEnd, 100}},
            RandomGenerator{1}};
}

} // namespace ventrel
