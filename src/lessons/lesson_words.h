// The words of a lesson's text: one table for its facts and one for its spots, read and checked by them.

#pragma once

#include <array>
#include <string>
#include <string_view>

#include "lessons/lesson.h"

namespace ventrel {

/// How a piece of the text stands in what is said about it: not more of it than is needed to find it.
inline std::string quoted(std::string_view text) {
    constexpr std::size_t mostShown = 60;
    return "'" + std::string(text.substr(0, mostShown)) + (text.size() > mostShown ? "..." : "") + "'";
}

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
    perhapsSpeed,
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
    DeskPart part;
    Operand operand = Operand::none;
};

inline constexpr std::array spotWords{std::to_array<SpotWords>({
    {"nothing", DeskPart::nothing},
    {"flight", DeskPart::flight, Operand::flight},
    {"strip", DeskPart::strip, Operand::flight},
    {"point", DeskPart::point, Operand::point},
    {"cone", DeskPart::cone, Operand::point},
    {"strips", DeskPart::strips},
    {"panel", DeskPart::panel},
    {"dial", DeskPart::dial},
    {"altitude", DeskPart::altitude, Operand::perhapsAltitude},
    {"speed", DeskPart::speed, Operand::perhapsSpeed},
    {"direct", DeskPart::direct},
    {"target", DeskPart::target},
    {"preview", DeskPart::preview},
    {"exec", DeskPart::exec},
    {"clock", DeskPart::clock},
    {"ticker", DeskPart::ticker},
    {"lamps", DeskPart::lamps},
    {"score", DeskPart::score},
})};

} // namespace ventrel
