// An evening at the game without a window: a player starts it, tries one thing after the other, and reads
// every box that comes up. What was said and what worked is the outcome.

#pragma once

#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/devices/sound_device.h"

namespace ventrel {

/// What is tried, in this order.
enum class Station {
    opening,
    game,   ///< a new one; everything behind it needs the console alone
    calls,  ///< of pilots
    stop,   ///< the program is held up for a minute in play
    ending, ///< the shift ends with a score
    list,   ///< which then stands in the list of shifts, too
    page,   ///< about a collision
    film,   ///< of a high score
    table,  ///< of the scores
    about,
    lesson,
    replay,  ///< is watched
    options, ///< one is changed
};

struct NamedStation {
    Station station;
    std::string_view name;
};
inline constexpr std::array namedStations{std::to_array<NamedStation>({
    {Station::opening, "the opening"},
    {Station::game, "a game"},
    {Station::calls, "pilots' calls"},
    {Station::stop, "the game going on where it stood"},
    {Station::ending, "keeping the score"},
    {Station::list, "keeping the shift for comparison"},
    {Station::page, "the page about a collision"},
    {Station::film, "the film"},
    {Station::table, "the table of scores"},
    {Station::about, "About"},
    {Station::lesson, "lessons"},
    {Station::replay, "watching the replay"},
    {Station::options, "keeping options"},
})};

struct EveningSetup {
    std::filesystem::path programFolder;
    std::filesystem::path playerFolder; ///< empty for nowhere
    std::set<Station> stations;
    SoundFault soundFault = SoundFault::none;
};

struct Outcome {
    std::vector<std::string> told; ///< each once
    bool hasStarted = false;       ///< the console stood
    bool isAskedAsNewcomer = false;
    bool hasMusic = false;
    std::string hang; ///< why it came to no end; empty when it did
    std::set<Station> failed;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

/// The player's files are as after a few evenings: see preparePlayer.
Outcome spendEvening(const EveningSetup& setup);

inline constexpr std::string_view optionsName = "ventrel.ini";
inline constexpr std::string_view replayName = "replays/shift 2026-01-02 03-04-05.replay";
inline constexpr std::string_view ownAirspace = "apt/own.apt";

/// Fills the folder with what a player of that program has by and by: options, scores, shifts, a replay, an
/// airspace of his own.
void preparePlayer(const std::filesystem::path& programFolder, const std::filesystem::path& playerFolder);

} // namespace ventrel
