// The words of a lesson's text: one table for its facts and one for its spots, read and checked by them.

#pragma once

#include <array>
#include <string_view>

#include "lessons/lesson.h"

namespace ventrel {

/// What follows the words.
enum class Operand {
    none,
    altitude, ///< 1 to 10
    heading,  ///< 0 to 315 in steps of 45
    speed,    ///< slow, normal, fast
    count,    ///< 1 to 99
    point,
    anyPoint, ///< a point, or "any"
    distance, ///< "6 of ATL"
    flight,
    perhapsAltitude,
};

struct FactWords {
    std::string_view words;
    Fact fact;
    bool ofFlight;
    Operand operand = Operand::none;
};

inline constexpr std::array factWords{std::to_array<FactWords>({
    {"active", Fact::active, true},
    {"selected", Fact::selected, true},
    {"panel altitude", Fact::panelAltitude, true, Operand::altitude},
    {"panel heading", Fact::panelHeading, true, Operand::heading},
    {"panel direct", Fact::panelDirect, true, Operand::anyPoint},
    {"panel hold", Fact::panelHold, true},
    {"panel speed", Fact::panelSpeed, true, Operand::speed},
    {"told altitude", Fact::toldAltitude, true, Operand::altitude},
    {"told heading", Fact::toldHeading, true, Operand::heading},
    {"told direct", Fact::toldDirect, true, Operand::anyPoint},
    {"told hold", Fact::toldHold, true},
    {"told speed", Fact::toldSpeed, true, Operand::speed},
    {"waiting", Fact::waiting, true},
    {"rolling", Fact::rolling, true},
    {"airborne", Fact::airborne, true},
    {"at altitude", Fact::atAltitude, true, Operand::altitude},
    {"at heading", Fact::atHeading, true, Operand::heading},
    {"within", Fact::within, true, Operand::distance},
    {"in line", Fact::inLine, true, Operand::point},
    {"on final", Fact::onFinal, true, Operand::point},
    {"moved", Fact::moved, true, Operand::count},
    {"landed", Fact::landed, true},
    {"left", Fact::left, true},
    {"lost", Fact::lost, true},
    {"gone", Fact::gone, true},
    {"missed heading", Fact::missedHeading, true},
    {"missed altitude", Fact::missedAltitude, true},
    {"missed exit", Fact::missedExit, true},
    {"refused direct", Fact::refusedDirect, true},
    {"near miss", Fact::nearMiss, true},
    {"ordered", Fact::ordered, true},
    {"paused", Fact::paused, false},
    {"skipped", Fact::skipped, false},
    {"read", Fact::read, false},
    {"collided", Fact::collided, false},
    {"ended", Fact::ended, false},
})};

struct SpotWords {
    std::string_view words;
    Spot spot;
    Operand operand = Operand::none;
};

inline constexpr std::array spotWords{std::to_array<SpotWords>({
    {"nothing", Spot::nothing},
    {"flight", Spot::flight, Operand::flight},
    {"strip", Spot::strip, Operand::flight},
    {"point", Spot::point, Operand::point},
    {"cone", Spot::cone, Operand::point},
    {"scope", Spot::scope},
    {"strips", Spot::strips},
    {"panel", Spot::panel},
    {"dial", Spot::dial},
    {"altitude", Spot::altitude, Operand::perhapsAltitude},
    {"speed", Spot::speed},
    {"direct", Spot::direct},
    {"target", Spot::target},
    {"preview", Spot::preview},
    {"exec", Spot::exec},
    {"clock", Spot::clock},
    {"ticker", Spot::ticker},
    {"lamps", Spot::lamps},
    {"score", Spot::score},
})};

} // namespace ventrel
