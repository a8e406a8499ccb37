// What stands on the console for its look alone: knobs, screws, vents, plates and the sheets of metal. The
// places of everything that the program draws into stand in its own table.

#pragma once

#include <array>
#include <span>
#include <string_view>

#include "console/console_layout.h"
#include "tools/art/svg.h"

namespace ventrel::art {

/// A screw, or a knob with its pointer, turned by `degrees`.
struct Turned {
    Spot at;
    double degrees = 0;
};

struct Knob {
    Turned place;
    std::string_view label;
};

/// A row of ventilation slots.
struct Vent {
    Box area;
    int slots = 0;
};

/// A name plate that stands on end.
struct Plate {
    Box area;
    std::string_view words;
    double spacing = 0;
};

struct ConsoleFittings {
    const ConsoleLayout& places;
    Rect stripModule;   ///< the sheet around the strips
    Rect controlModule; ///< and that around the control panel
    std::span<const Knob> knobs;
    std::span<const Turned> screws;
    std::span<const Vent> vents;
    std::span<const Plate> plates;
    std::span<const Box> handles;
};

// The fittings around the scope stand on two axes, left and right of it, and mirror each other about its
// middle as far as the modules leave room.
inline constexpr std::array<Knob, 4> largeKnobs{{
    {{{104, 106}, -38}, "BRILLIANCE"},
    {{{722, 106}, 35}, "FOCUS"},
    {{{104, 700}, 5}, "VIDEO GAIN"},
    {{{722, 700}, -70}, "RANGE RINGS"},
}};
inline constexpr std::array<Turned, 4> largeScrews{
    {{{26, 64}, 15}, {{794, 64}, 70}, {{26, 753}, -30}, {{794, 753}, 40}}};
inline constexpr std::array<Vent, 4> largeVents{{
    {{11, 92, 30, 80}, 9},
    {{11, 654, 30, 80}, 9},
    {{783, 92, 22, 134}, 15},
    {{783, 600, 22, 134}, 15},
}};
inline constexpr std::array<Plate, 2> largePlates{{
    {{785, 252, 18, 122}, "VENTREL  MK IV", 1.4},
    {{785, 452, 18, 122}, "APPROACH CONTROL", 1.0},
}};
inline constexpr std::array<Box, 2> largeHandles{{{17, 222, 18, 150}, {17, 454, 18, 150}}};

inline constexpr ConsoleFittings largeFittings{
    .places = largeConsole,
    .stripModule = {812, 56, 1016, 622},
    .controlModule = {812, 629, 1016, 762},
    .knobs = largeKnobs,
    .screws = largeScrews,
    .vents = largeVents,
    .plates = largePlates,
    .handles = largeHandles,
};

inline constexpr std::array<Knob, 4> smallKnobs{{
    {{{56, 102}, -38}, "BRILLIANCE"},
    {{{538, 102}, 35}, "FOCUS"},
    {{{56, 534}, 5}, "VIDEO GAIN"},
    {{{538, 534}, -70}, "RANGE RINGS"},
}};
inline constexpr std::array<Turned, 4> smallScrews{
    {{{18, 64}, 15}, {{574, 64}, 70}, {{18, 588}, -30}, {{574, 588}, 40}}};
inline constexpr std::array<Vent, 2> smallVents{{{{9, 158, 18, 71}, 8}, {{9, 428, 18, 71}, 8}}};
inline constexpr std::array<Plate, 2> smallPlates{{
    {{566, 150, 16, 84}, "VENTREL  MK IV", 0.9},
    {{566, 408, 16, 98}, "APPROACH CONTROL", 0.4},
}};

inline constexpr ConsoleFittings smallFittings{
    .places = smallConsole,
    .stripModule = {588, 56, 792, 454},
    .controlModule = {588, 461, 792, 594},
    .knobs = smallKnobs,
    .screws = smallScrews,
    .vents = smallVents,
    .plates = smallPlates,
    .handles = {},
};

} // namespace ventrel::art
