#include "sim/shift_texts.h"

#include <array>

#include "base/string_table.h"

namespace ventrel {

namespace {

constexpr long feetPerAltitude = 1000;

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
    std::array<char, 64> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%A, %B %d, %Y", &day);
    return {text.data(), length};
}

} // namespace ventrel
