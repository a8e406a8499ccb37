// The gallery's menu, dialog and keys, as the tables that the widgets are made from.

#pragma once

#include <array>

#include "platform/desktop/desktop.h"
#include "platform/widgets/templates.h"

namespace ventrel {

inline constexpr int galleryMenuCommand = 500;
inline constexpr int galleryDialogCommand = 501;
inline constexpr int galleryBoxCommand = 502;
inline constexpr int galleryGridCommand = 601;
inline constexpr int galleryExitCommand = 607;
inline constexpr int galleryFullScreenCommand = 608;

namespace gallery_tables {

inline constexpr std::array displayItems{std::to_array<MenuItemTemplate>({
    {"S&weep", 602},
    {"&Grid", galleryGridCommand},
    {"Grey&ed", 603, {}, true},
})};
inline constexpr std::array menuItems{std::to_array<MenuItemTemplate>({
    {"&New Game...", 604},
    {"&Pause\tPAUSE", 605},
    {"Sc&hedule...\tCtrl+S", 606, {}, true},
    {""},
    {"&Display", 0, displayItems},
    {"Full Screen", galleryFullScreenCommand},
    {""},
    {"Exit\tAlt+F4", galleryExitCommand},
})};

inline constexpr std::array accelerators{std::to_array<Accelerator>({
    {Key::f, {false, false, true}, galleryMenuCommand},
    {Key::d, {false, false, true}, galleryDialogCommand},
    {Key::b, {false, false, true}, galleryBoxCommand},
})};

inline constexpr int nameId = 1010;
inline constexpr int listId = 1007;
inline constexpr int cloudsId = 1017;
inline constexpr int lastRadioId = 1002;
inline constexpr int askId = 1005;

inline constexpr std::array dialogControls{std::to_array<ControlTemplate>({
    {ControlKind::groupBox, 0, "Skill", {6, 4, 58, 46}},
    {ControlKind::radioButton, 1000, "Eas&y", {12, 14, 55, 24}, groupStart},
    {ControlKind::radioButton, 1001, "Nor&mal", {12, 24, 55, 34}},
    {ControlKind::radioButton, lastRadioId, "&Hard", {12, 34, 55, 44}},
    {ControlKind::staticText, 0, "&Name:", {64, 5, 100, 13}},
    {ControlKind::edit, nameId, "", {64, 14, 127, 26}},
    {ControlKind::checkBox, cloudsId, "&Cloud cover", {64, 33, 127, 43}},
    {ControlKind::listBox, listId, "", {6, 51, 78, 112}},
    {ControlKind::staticText, 0, "None", {84, 51, 127, 62}, sunkenStatic},
    {ControlKind::pushButton, askId, "&Ask...", {84, 65, 127, 78}},
    {ControlKind::defaultButton, okId, "OK", {84, 82, 127, 95}},
    {ControlKind::pushButton, cancelId, "Cancel", {84, 99, 127, 112}},
})};
inline constexpr DialogTemplate dialog{.title = "New Game", .size = {133, 118}, .controls = dialogControls};

inline constexpr std::array<const char*, 8> airports{"Zurich", "Amsterdam", "London",  "Hong Kong",
                                                     "Paris",  "Miami",     "Chicago", "Atlanta"};

inline constexpr std::array<const char*, 8> flights{"02:10\tUA482\tATL*\tMIA", "03:35\tDL274H\t----\tATL*",
                                                    "04:20\tKL465\tPHL\tJFK*", "05:05\tBA118H\tLGA*\tBOS",
                                                    "06:40\tAF007\tBOS\tPHL",  "07:15\tLH401\tJFK*\tATL",
                                                    "08:00\tNW88\tMIA\tLGA*",  "09:30\tTW842\tPHL\tMIA"};

} // namespace gallery_tables

} // namespace ventrel
