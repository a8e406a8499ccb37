// The program's numbered texts. A message that belongs to one place alone stands there.

#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/format.h"

namespace ventrel {

/// The numbers of the texts, named after what they say.
enum class TextId : int {
    cannotOpenFile = 1,
    displayModeFailed = 2,
    notEnoughMemory = 3,
    fileReadFailed = 4,
    confirmQuitGame = 5,
    requestDeparture = 8,
    enteringAirspace = 9,
    towerWaiting = 10,
    stillWaiting = 11,
    immediateDeparture = 12,
    missedApproachTooHigh = 13,
    missedApproachHeading = 14,
    missedApproachTooLow = 15,
    leavingAirspace = 16,
    landing = 17,
    nearMiss = 18,
    flightLost = 19,
    soundFailed = 20,
    pressReleaseDate = 21,
    confirmResolution = 22,
    pressReleaseAccident = 23,
    pressReleaseController = 24,
    cannotExit = 25,
    scoreSoFar = 26,
    pleaseEnterName = 27,
    cannotOpenForWriting = 28,
    fileWriteFailed = 29,
    gameOver = 30,
    welcome = 31,
    tooCloseForDirect = 32,
    soundInUse = 35,
    noAirports = 36,
    planesOutOfRange = 37,
    minutesOutOfRange = 38,
    confirmDeleteScores = 39,
    tooManyPlanes = 40,
    confirmFullScreen = 41,
    airportIncomplete = 42,
    colourDepthTooLow = 43,
    chooseAirport = 44,
};

/// The text of that number; empty for a number that is not in the table.
std::string_view StringTableText(TextId id);

/// The text of that number with its placeholders filled (see FormatText).
std::string FormatStringId(TextId id, std::initializer_list<FormatValue> values);

} // namespace ventrel
