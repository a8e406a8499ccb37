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
};

// The same at both sizes.
inline constexpr std::array<Rect, 3> menuButtons{{{31, 20, 83, 39}, {93, 20, 145, 39}, {155, 20, 207, 39}}};
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

inline constexpr ConsoleLayout largeConsole{
    .size = {1024, 768},
    .radarWindow = {70, 70, 756, 756},
    .scope = {70, 70, 756, 756},
    .strips = 14,
    .stripPanel = {869, 71, 1008, 612},
    .stripModule = {812, 56, 1016, 622},
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

inline constexpr ConsoleLayout smallConsole{
    .size = {800, 600},
    .radarWindow = {16, 61, 555, 600},
    .scope = {43, 76, 551, 581},
    .strips = 10,
    .stripPanel = {645, 71, 784, 442},
    .stripModule = {588, 56, 792, 454},
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
};

} // namespace ventrel::art
