#include "replay/replay.h"

#include "base/version.h"
#include "replay/airspace_checksum.h"
#include "sim/game.h"

namespace ventrel {

PanelOrder panelOrderFrom(const ReplayedOrder& order, int pointCount) {
    return {.altitude = order.altitude,
            .heading = order.heading,
            .directTarget = directTargetOf(order.target, pointCount),
            .speed = order.speed,
            .hold = order.hold};
}

ReplayedOrder replayedOrder(FlightIndex flight, const PanelOrder& order, int pointCount) {
    return {.flight = flight,
            .altitude = order.altitude,
            .heading = order.heading,
            .speed = order.speed,
            .target = directTargetNumber(order.directTarget, pointCount),
            .hold = order.hold};
}

ReplayHeader replayHeader(const Game& game, const ShiftSetup& setup, std::uint32_t seed) {
    return {.program = std::string{programVersion},
            .begun = {},
            .airspaceName = game.airspace->name,
            .airspaceFile = {},
            .airspaceChecksum = airspaceChecksum(*game.airspace),
            .width = setup.layout.windowWidth,
            .skill = setup.skill,
            .custom = setup.custom,
            .cloudCover = setup.cloudCover,
            .directEntry = setup.directEntry,
            .voiceSetCount = setup.voiceSetCount,
            .cloudSizes = {setup.cloudSizes.begin(), setup.cloudSizes.end()},
            .controllerName = setup.controllerName,
            .lastStepTime = game.lastStepTime,
            .seed = seed,
            .possibleScore = game.possibleScore};
}

ShiftSetup setupFrom(const ReplayHeader& header) {
    return {.skill = header.skill,
            .custom = header.custom,
            .cloudCover = header.cloudCover,
            .directEntry = header.directEntry,
            .voiceSetCount = header.voiceSetCount,
            .cloudSizes = header.cloudSizes,
            .layout = scopeLayoutFor(header.width).value_or(smallLayout),
            .controllerName = header.controllerName};
}

} // namespace ventrel
