// The finished texts that frame a shift: welcome, score report, game over, and the press release of a
// collision.

#pragma once

#include <ctime>
#include <string>
#include <string_view>

#include "sim/game.h"

namespace ventrel {

/// For the ticker, class information.
std::string welcomeText(const Game& game);
std::string scoreSoFarText(const Game& game);
std::string gameOverText(const Game& game);

/// The paragraphs of the page that reports a collision.
struct PressRelease {
    std::string heading;    ///< the date, and "for immediate release" on a line of its own
    std::string accident;   ///< where, who and how high
    std::string controller; ///< who is to blame
};

/// About the game's `collisionFlights`; `date` as the page writes it (see pressReleaseDate).
PressRelease composePressRelease(const Game& game, std::string_view date);

/// A day as the press release writes it: weekday, month, day and year.
std::string pressReleaseDate(const std::tm& day);

} // namespace ventrel
