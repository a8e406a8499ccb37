// The menus, as they are read on the screen.

#pragma once

#include <array>

#include "base/version.h"
#include "platform/widgets/templates.h"
#include "resources/command_ids.h"
#include "resources/joined.h"
#include "resources/option_rows.h"

namespace ventrel {

inline constexpr MenuItemTemplate menuSeparator{};

inline constexpr std::array fileMenuItems{std::to_array<MenuItemTemplate>({
    {"&New Game...", command::newGame},
    {"&End Game", command::endGame},
    menuSeparator,
    {"Exit\tAlt+F4", command::exitProgram},
    menuSeparator,
    {"&Replays...", command::replays},
    {"Shift of the &Day...", command::shiftOfTheDay},
    {"Practice at &Half Speed", command::halfSpeed},
})};

inline constexpr auto displayMenuItems = optionMenuItems<OptionMenu::display>();
inline constexpr auto musicVolumeItems = optionMenuItems<OptionMenu::musicVolume>();
inline constexpr auto soundVolumeItems = optionMenuItems<OptionMenu::soundVolume>();
inline constexpr auto soundMenuItems =
    joined(optionMenuItems<OptionMenu::sounds>(), std::to_array<MenuItemTemplate>({
                                                      menuSeparator,
                                                      {"Music Vo&lume\tF5 F6", 0, musicVolumeItems},
                                                      {"Other V&olume\tF7 F8", 0, soundVolumeItems},
                                                  }));
inline constexpr auto resolutionMenuItems =
    joined(optionMenuItems<OptionMenu::pictureSize>(), std::array{menuSeparator},
           optionMenuItems<OptionMenu::screen>());

inline constexpr auto optionsMenuItems = joined(std::to_array<MenuItemTemplate>({
                                                    {"&Schedule...\tCtrl+S", command::schedule},
                                                    {"&Boss Key\tESC", command::bossKey},
                                                    {"&Pause\tPAUSE", command::pause},
                                                    {"Show Hi Scores...", command::highScores},
                                                    menuSeparator,
                                                    {"Display Options", 0, displayMenuItems},
                                                    {"So&unds", 0, soundMenuItems},
                                                    {"Screen &Resolution", 0, resolutionMenuItems},
                                                }),
                                                optionMenuItems<OptionMenu::top>(),
                                                std::to_array<MenuItemTemplate>({
                                                    menuSeparator,
                                                    {"A&ids...", command::aids},
                                                    {"Shift &Log...\tCtrl+L", command::shiftLog},
                                                }));

inline constexpr std::array helpMenuItems{std::to_array<MenuItemTemplate>({
    {"&About Ventrel " VENTREL_VERSION "...", command::about},
    menuSeparator,
    {"&Lessons...", command::lessons},
    {"&Watch a Shift...", command::watchShift},
})};

inline constexpr std::array systemMenuItems{std::to_array<MenuItemTemplate>({
    {"&Restore", command::nothing, {}, true},
    {"&Move", command::nothing, {}, true},
    {"&Size", command::nothing, {}, true},
    {"Mi&nimize", command::minimise},
    {"Ma&ximize", command::nothing, {}, true},
    menuSeparator,
    {"&Close\tAlt+F4", command::exitProgram},
})};

// The order menu of an aircraft. The airport's map points follow the hold when the menu is made.

inline constexpr std::array planeHeadingItems{std::to_array<MenuItemTemplate>({
    {"0", command::planeHeading},
    {"45", command::planeHeading + 1},
    {"90", command::planeHeading + 2},
    {"135", command::planeHeading + 3},
    {"180", command::planeHeading + 4},
    {"225", command::planeHeading + 5},
    {"270", command::planeHeading + 6},
    {"315", command::planeHeading + 7},
})};

inline constexpr std::array planeTargetItems{std::to_array<MenuItemTemplate>({
    {"---Hold---", command::planeHold},
})};

inline constexpr std::array planeAltitudeItems{std::to_array<MenuItemTemplate>({
    {"1K", command::planeAltitude},
    {"2K", command::planeAltitude + 1},
    {"3K", command::planeAltitude + 2},
    {"4K", command::planeAltitude + 3},
    {"5K", command::planeAltitude + 4},
    {"6K", command::planeAltitude + 5},
    {"7K", command::planeAltitude + 6},
    {"8K", command::planeAltitude + 7},
    {"9K", command::planeAltitude + 8},
    {"10K", command::planeAltitude + 9},
})};

inline constexpr std::array planeSpeedItems{std::to_array<MenuItemTemplate>({
    {"Fast", command::planeFast},
    {"Normal", command::planeNormal},
    {"Slow", command::planeSlow},
})};

inline constexpr std::array planeMenuItems{std::to_array<MenuItemTemplate>({
    {"Heading", 0, planeHeadingItems},
    {"Direct to VOR", 0, planeTargetItems},
    {"Altitude", 0, planeAltitudeItems},
    {"Speed", 0, planeSpeedItems},
})};
/// Where the map points are added.
inline constexpr std::size_t planeTargetMenu = 1;

} // namespace ventrel
