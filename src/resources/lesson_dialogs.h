// The dialogs of the lessons: the list of them, and what the very first start offers. Places are dialog
// units.

#pragma once

#include <array>

#include "platform/widgets/templates.h"

namespace ventrel {

namespace lesson_list {

inline constexpr int list = 1007;
inline constexpr int about = 1008;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::listBox, list, "", {7, 7, 148, 67}},
    {ControlKind::groupBox, 0, "What you learn", {155, 4, 270, 67}},
    {ControlKind::staticText, about, "", {162, 16, 264, 63}, multiLine},
    {ControlKind::defaultButton, okId, "Begin", {84, 74, 134, 88}},
    {ControlKind::pushButton, cancelId, "Cancel", {143, 74, 193, 88}},
})};

inline constexpr DialogTemplate shape{.title = "Lessons", .size = {277, 94}, .controls = controls};

} // namespace lesson_list

namespace first_start {

inline constexpr int lesson = 1001;
inline constexpr int newGame = 1002;

inline constexpr std::string_view question =
    "Six short lessons show you round, in a real shift whose points do not count. You find them again under "
    "Help, Lessons.";

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, question, {10, 8, 200, 34}, multiLine},
    {ControlKind::defaultButton, lesson, "Take the first &lesson", {10, 40, 96, 54}},
    {ControlKind::pushButton, newGame, "&New game", {102, 40, 149, 54}},
    {ControlKind::pushButton, cancelId, "Look &around", {155, 40, 202, 54}},
})};

inline constexpr DialogTemplate shape{.title = "Welcome to Ventrel", .size = {212, 61}, .controls = controls};

} // namespace first_start

} // namespace ventrel
