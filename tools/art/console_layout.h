// Where everything on the console stands, at both sizes of the main window, in its pixels.
//
// The windows draw into these places; the drawing puts wells, marks and frames exactly under them.

#pragma once

#include <array>
#include <span>
#include <string_view>

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

struct ConsoleLayout {
    Size size;
    Rect radarWindow; ///< cut out as the frame of the radar
    Rect scope;       ///< the round glass within it
    int strips = 0;
    Rect stripPanel;
    Rect stripModule;
    Rect messageStrip;
    Rect controlModule;
    Point controlPanel; ///< corner of the control panel's window
    Rect execButton;
    Rect scrollDown;
    std::span<const Knob> knobs;
    std::span<const Turned> screws;
    std::span<const Vent> vents;
    std::span<const Plate> plates;
    std::span<const Box> handles;
    int labelStep = 0; ///< degrees between the numbers around the scope
};

// The same at both sizes.
inline constexpr Rect menuButtons{31, 20, 207, 39};
inline constexpr Rect smallScopeFace{219, 18, 243, 42};
inline constexpr Rect clockWindow{261, 21, 312, 36};
inline constexpr std::array<Point, 3> lampCorners{{{320, 16}, {348, 16}, {376, 16}}};
inline constexpr int lampSize = 28;
inline constexpr Rect systemSquare{2, 1, 8, 7};
inline constexpr int dragStripHeight = 5;
inline constexpr int stripPitch = 37;
inline constexpr Size stripButton{20, 12};

// From the right edge of the window.
inline constexpr int stripButtonFromRight = 190;
inline constexpr int stripButtonTop = 81;
inline constexpr int scrollFromRight = 172;
inline constexpr Size scrollArrow{11, 9};
inline constexpr int scrollUpTop = 69;

inline constexpr std::array<Knob, 4> largeKnobs{{
    {{{104, 104}, -38}, "BRILLIANCE"},
    {{{722, 104}, 35}, "FOCUS"},
    {{{104, 710}, 5}, "VIDEO GAIN"},
    {{{722, 710}, -70}, "RANGE RINGS"},
}};
inline constexpr std::array<Turned, 4> largeScrews{
    {{{64, 66}, 15}, {{762, 66}, 70}, {{64, 752}, -30}, {{762, 752}, 40}}};
inline constexpr std::array<Vent, 4> largeVents{{
    {{11, 86, 30, 80}, 9},
    {{11, 664, 30, 80}, 9},
    {{786, 140, 24, 107}, 12},
    {{786, 588, 20, 107}, 12},
}};
inline constexpr std::array<Plate, 2> largePlates{{
    {{792, 264, 18, 112}, "VENTREL  MK IV", 1.4},
    {{792, 452, 18, 118}, "APPROACH CONTROL", 1.1},
}};
inline constexpr std::array<Box, 2> largeHandles{{{17, 236, 18, 150}, {17, 440, 18, 150}}};

inline constexpr ConsoleLayout largeConsole{
    .size = {1024, 768},
    .radarWindow = {70, 70, 756, 756},
    .scope = {70, 70, 756, 756},
    .strips = 14,
    .stripPanel = {869, 71, 1008, 612},
    .stripModule = {820, 54, 1016, 622},
    .messageStrip = {443, 19, 1005, 39},
    .controlModule = {812, 629, 1016, 762},
    .controlPanel = {824, 640},
    .execButton = {992, 656, 1006, 724},
    .scrollDown = {852, 604, 863, 613},
    .knobs = largeKnobs,
    .screws = largeScrews,
    .vents = largeVents,
    .plates = largePlates,
    .handles = largeHandles,
    .labelStep = 10,
};

inline constexpr std::array<Knob, 4> smallKnobs{{
    {{{48, 98}, -38}, "BRILLIANCE"},
    {{{541, 98}, 35}, "FOCUS"},
    {{{48, 549}, 5}, "VIDEO GAIN"},
    {{{541, 549}, -70}, "RANGE RINGS"},
}};
inline constexpr std::array<Turned, 2> smallScrews{{{{14, 62}, 15}, {{14, 588}, -30}}};
inline constexpr std::array<Vent, 2> smallVents{{{{567, 156, 21, 80}, 9}, {{565, 448, 18, 53}, 6}}};
inline constexpr std::array<Plate, 1> smallPlates{{{{573, 57, 15, 84}, "VENTREL  MK IV", 0.9}}};

inline constexpr ConsoleLayout smallConsole{
    .size = {800, 600},
    .radarWindow = {16, 61, 555, 600},
    .scope = {43, 76, 551, 581},
    .strips = 10,
    .stripPanel = {645, 71, 784, 442},
    .stripModule = {596, 54, 792, 454},
    .messageStrip = {443, 19, 783, 39},
    .controlModule = {588, 461, 792, 594},
    .controlPanel = {600, 472},
    .execButton = {768, 488, 782, 556},
    .scrollDown = {628, 436, 639, 445},
    .knobs = smallKnobs,
    .screws = smallScrews,
    .vents = smallVents,
    .plates = smallPlates,
    .handles = {},
    .labelStep = 30,
};

} // namespace ventrel::art
