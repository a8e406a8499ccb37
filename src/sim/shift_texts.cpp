#include "sim/shift_texts.h"

#include <array>

#include "base/string_table.h"

namespace ventrel {

namespace {

constexpr long feetPerAltitude = 1000;

// In English, whatever language the machine speaks.
constexpr std::array<std::string_view, 7> weekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};
constexpr std::array<std::string_view, 12> months{"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};
constexpr int firstYear = 1900; // from which `std::tm` counts

} // namespace

std::string welcomeText(const Game& game) {
    const ClockSeconds first = firstScheduledTime(game);
    return FormatStringId(TextId::welcome, {game.controllerName, long{first / clockMinute},
                                            long{(first % clockMinute).count()}});
}

std::string scoreSoFarText(const Game& game) {
    return FormatStringId(TextId::scoreSoFar, {game.controllerName, long{game.score}});
}

std::string gameOverText(const Game& game) {
    return FormatStringId(TextId::gameOver, {long{game.score}, long{game.possibleScore}});
}

PressRelease composePressRelease(const Game& game, std::string_view date) {
    const Flight& standing = game.flight(game.collisionFlights[0]);
    const Flight& moving = game.flight(game.collisionFlights[1]);
    return {
        .heading = FormatStringId(TextId::pressReleaseDate, {date}),
        .accident = FormatStringId(TextId::pressReleaseAccident,
                                   {game.airspace->name, std::string_view{standing.callsign},
                                    std::string_view{moving.callsign},
                                    standing.current().altitude * feetPerAltitude}),
        .controller =
            FormatStringId(TextId::pressReleaseController, {game.controllerName, game.controllerName}),
    };
}

std::string pressReleaseDate(const std::tm& day) {
    return FormatText("%s, %s %02d, %d", {weekdays.at(static_cast<std::size_t>(day.tm_wday)),
                                          months.at(static_cast<std::size_t>(day.tm_mon)), long{day.tm_mday},
                                          long{firstYear + day.tm_year}});
}

} // namespace ventrel
