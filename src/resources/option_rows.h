// Everything that the program does with each of the player's settings.
//
// An option is a line of the record and a row of the table here: its key in the options file, its menu items
// with their ticks, and what a change brings. The file, the menus and the commands read the table.

#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "options/options.h"
#include "platform/widgets/templates.h"
#include "resources/aid_rows.h"
#include "resources/command_ids.h"
#include "resources/joined.h"

namespace ventrel {

/// The part of the Options menu in which an item stands.
enum class OptionMenu { none, top, display, sounds, musicVolume, soundVolume, pictureSize, screen };

/// When an item is ticked, and what choosing it does.
enum class OptionTick {
    whenOn,    ///< turns the option over
    whenOff,   ///< turns the option over
    whenValue, ///< gives the option the item's value
};

struct OptionItem {
    OptionMenu menu = OptionMenu::none;
    int place = 0; ///< among the items of its part, from 0
    std::string_view text = {};
    int command = 0;
    OptionTick tick = OptionTick::whenOn;
    int value = 0;
};

/// What follows when the player has changed an option.
enum class OptionEffect {
    none, ///< it is looked at when it matters
    repaintRadar,
    rebuildMap,
    startOrStopMusic,
    click,             ///< one is heard, so that the player knows how loud it is now
    sizeAtNextStart,   ///< the player is asked first, and the program ends
    screenAtNextStart, ///< it changes; then the player is asked whether the program shall end
};

inline constexpr std::size_t mostOptionItems = 5;

/// The steps of a volume, whose commands count from that of the softest.
constexpr std::array<OptionItem, mostOptionItems> volumeItems(OptionMenu menu, int softest) {
    constexpr std::array<std::string_view, mostOptionItems> texts{"&1 (softest)", "&2", "&3", "&4",
                                                                  "&5 (loudest)"};
    std::array<OptionItem, mostOptionItems> items{};
    for (int step = 0; step < static_cast<int>(mostOptionItems); ++step) {
        const auto place = static_cast<std::size_t>(step);
        items[place] = {menu, step, texts[place], softest + step, OptionTick::whenValue, step + 1};
    }
    return items;
}

struct OptionRow {
    std::string_view key = {};
    int Options::* value = nullptr;
    OptionEffect effect = OptionEffect::none;
    std::array<OptionItem, mostOptionItems> items = {}; ///< those without a menu are none: dialogs change it
    bool isWritten = true;
};

inline constexpr std::array ownOptionRows{std::to_array<OptionRow>({
    {"AutoSelect",
     &Options::autoSelect,
     OptionEffect::none,
     {{{OptionMenu::top, 0, "&Auto Select New Planes", command::autoSelect}}}},
    {"ShowGrid",
     &Options::showGrid,
     OptionEffect::rebuildMap,
     {{{OptionMenu::display, 1, "&Grid", command::grid}}}},
    {"Music",
     &Options::music,
     OptionEffect::startOrStopMusic,
     {{{OptionMenu::sounds, 0, "&Music", command::music}}}},
    {"Effects",
     &Options::effects,
     OptionEffect::none,
     {{{OptionMenu::sounds, 1, "&Sound Effects", command::soundEffects}}}},
    {"Voice",
     &Options::voice,
     OptionEffect::none,
     {{{OptionMenu::sounds, 2, "Pilot &Voices", command::pilotVoices}}}},
    {"Resolution",
     &Options::resolution,
     OptionEffect::sizeAtNextStart,
     {{{OptionMenu::pictureSize, 0, "800 x 600", command::smallResolution, OptionTick::whenValue,
        smallResolution},
       {OptionMenu::pictureSize, 1, "1024 x 768", command::largeResolution, OptionTick::whenValue,
        largeResolution}}}},
    {"CustomSkill", &Options::customSkill},
    {"CustomPlanes", &Options::customPlanes},
    {"CustomSched", &Options::customSched},
    {"CustomBonus", &Options::customBonus},
    {"ShowRoutes",
     &Options::showRoutes,
     OptionEffect::repaintRadar,
     {{{OptionMenu::display, 2, "Direct to &VOR Lines", command::routes}}}},
    {"MapDetails",
     &Options::mapDetails,
     OptionEffect::rebuildMap,
     {{{OptionMenu::display, 3, "Background &Image", command::backgroundImage}}}},
    {"StormTrak", &Options::stormTrak},
    {"RadarSweep",
     &Options::radarSweep,
     OptionEffect::repaintRadar,
     {{{OptionMenu::display, 0, "Radar S&weep", command::sweep}}}},
    {"Windowed",
     &Options::windowed,
     OptionEffect::screenAtNextStart,
     {{{OptionMenu::screen, 0, "&Full Screen", command::fullScreen, OptionTick::whenOff}}}},
    {"AirportSelect", &Options::airportSelect},
    {"DirectEntry", &Options::directEntry},
    {"MusicVolume", &Options::musicVolume, OptionEffect::none,
     volumeItems(OptionMenu::musicVolume, command::musicVolume)},
    {"SoundVolume", &Options::soundVolume, OptionEffect::click,
     volumeItems(OptionMenu::soundVolume, command::soundVolume)},
    {.key = "SingleSound", .value = &Options::singleSound, .isWritten = false},
})};

/// Those of the aids, which their dialog changes.
constexpr auto aidOptionRows() {
    std::array<OptionRow, aidRows.size()> rows{};
    std::ranges::transform(aidRows, rows.begin(),
                           [](const AidRow& aid) { return OptionRow{.key = aid.key, .value = aid.value}; });
    return rows;
}

// In the order in which a new file lists them.
inline constexpr auto optionRows = joined(ownOptionRows, aidOptionRows());
static_assert(sizeof(Options) == optionRows.size() * sizeof(int), "every option has its row");

/// Calls `use(row, item)` for every menu item of an option.
constexpr void forEachOptionItem(const auto& use) {
    for (const OptionRow& row : optionRows) {
        for (const OptionItem& item : row.items) {
            if (item.menu != OptionMenu::none) {
                use(row, item);
            }
        }
    }
}

constexpr std::size_t optionItemCount(OptionMenu menu) {
    std::size_t count = 0;
    forEachOptionItem(
        [&](const OptionRow&, const OptionItem& item) { count += item.menu == menu ? 1U : 0U; });
    return count;
}

/// The items of one part of the Options menu, in their places.
template <OptionMenu menu>
constexpr auto optionMenuItems() {
    std::array<MenuItemTemplate, optionItemCount(menu)> items{};
    forEachOptionItem([&items](const OptionRow&, const OptionItem& item) {
        if (item.menu == menu) {
            items.at(static_cast<std::size_t>(item.place)) = {item.text, item.command};
        }
    });
    return items;
}

constexpr bool isTicked(const OptionRow& row, const OptionItem& item, const Options& options) {
    const int value = options.*row.value;
    switch (item.tick) {
    case OptionTick::whenOff: return value == 0;
    case OptionTick::whenValue: return value == item.value;
    case OptionTick::whenOn: break;
    }
    return value != 0;
}

/// The option's value once the item has been chosen.
constexpr int chosenValue(const OptionRow& row, const OptionItem& item, const Options& options) {
    const int turnedOver = options.*row.value == 0 ? 1 : 0;
    return item.tick == OptionTick::whenValue ? item.value : turnedOver;
}

} // namespace ventrel
