// The Help dialog: keys, mouse and rules in short.

#pragma once

#include <array>

#include "platform/widgets/templates.h"

namespace ventrel::help {

inline constexpr std::string_view keys = "Enter\n"
                                         "Keypad 8 9 6 3 2 1 4 7\n"
                                         "I  O  L  .  ,  M  J  U\n"
                                         "Keypad 5, or K\n"
                                         "Keypad / *, or [ ]\n"
                                         "Keypad - +, or PgUp PgDn\n"
                                         "F  N  S\n"
                                         "Up, Down\n"
                                         "Space\n"
                                         "Pause, or P\n"
                                         "Esc\n"
                                         "Ctrl+S\n"
                                         "Alt+F, Alt+O, Alt+H\n"
                                         "Alt+F4";
inline constexpr std::string_view keyMeanings = "EXEC: send the order on the panel\n"
                                                "heading 0 45 90 135 180 225 270 315\n"
                                                "the same without a keypad\n"
                                                "direct course on or off\n"
                                                "target before, target after\n"
                                                "1,000 ft up, 1,000 ft down\n"
                                                "speed fast, normal, slow\n"
                                                "select the strip above or below\n"
                                                "on to the next 15 seconds\n"
                                                "pause and go on\n"
                                                "boss key: hide the window\n"
                                                "schedule of the shift\n"
                                                "menus File, Options, Help\n"
                                                "exit";

inline constexpr std::string_view mouse =
    "Left click an aircraft, or the button beside its strip, to select it; set its order on the panel and "
    "press EXEC. A departure takes off when you select its strip and press EXEC. For a hold step the "
    "DIRECT arrows to \"hold\". Right click an aircraft to choose one order that is sent at once. Click the "
    "clock to skip to the next 15 seconds. The wheel scrolls the strips.";

inline constexpr std::string_view events = "Landing at the airport (*), on the runway heading, at 1,000 ft\n"
                                           "Leaving over the exit at 10,000 ft\n"
                                           "Over the airport on another heading or too high\n"
                                           "Over the exit below 10,000 ft\n"
                                           "Lost: out of the scope anywhere else\n"
                                           "Near miss: same altitude, neighbouring cells\n"
                                           "A departure waits 10 minutes, then every 5\n"
                                           "An order beyond five a flight\n"
                                           "Same altitude, same cell";
inline constexpr std::string_view points = "+150\n+75\n-150\n-100\n-200\n-100\n-50\n-5\ngame over";

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::groupBox, 0, "Keys", {7, 4, 297, 134}},
    {ControlKind::staticText, 0, keys, {15, 15, 121, 129}, multiLine},
    {ControlKind::staticText, 0, keyMeanings, {124, 15, 291, 129}, multiLine},
    {ControlKind::groupBox, 0, "Mouse", {7, 137, 297, 192}},
    {ControlKind::staticText, 0, mouse, {15, 148, 291, 189}, multiLine},
    {ControlKind::groupBox, 0, "Points", {7, 195, 297, 284}},
    {ControlKind::staticText, 0, events, {15, 206, 246, 279}, multiLine},
    {ControlKind::staticText, 0, points, {247, 206, 289, 279}, multiLine | rightAligned},
    {ControlKind::defaultButton, okId, "OK", {127, 290, 177, 304}},
})};

inline constexpr DialogTemplate shape{.title = "Ventrel Help", .size = {304, 310}, .controls = controls};

} // namespace ventrel::help
