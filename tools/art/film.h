// The film that celebrates a place among the best scores: a landing at dusk, and the joy in the control room.
//
// It is cut in three shots to the fanfare of assets/sound/effects/main.toml: the wheels touch on its fourth
// bar, and the room cheers on its last chord.

#pragma once

#include <string>

#include "tools/art/svg.h"

namespace ventrel::art {

inline constexpr Size filmSize{320, 240};
inline constexpr int filmRate = 20; ///< pictures a second
inline constexpr int filmPictures = 200;
/// So many pictures are rendered at once, in rows and columns.
inline constexpr int filmSheetColumns = 5;
inline constexpr int filmSheetRows = 4;
inline constexpr int filmSheetPictures = filmSheetColumns * filmSheetRows;
inline constexpr Size filmSheetSize{filmSize.width * filmSheetColumns, filmSize.height* filmSheetRows};
inline constexpr int filmSheets = filmPictures / filmSheetPictures;

/// The sky behind it, all around the horizon that it shows. Its picture is to lie as "film_sky.png" beside
/// whatever shows the film.
std::string drawFilmSky();

/// The place of one of its pictures on its sheet.
constexpr Rect onFilmSheet(int picture) {
    return Rect::at(
        {picture % filmSheetColumns * filmSize.width, picture / filmSheetColumns * filmSize.height},
        filmSize);
}

/// One of the sheets, from 0.
std::string drawFilmSheet(int sheet);

/// What is used in any of its pictures; to be defined once before them.
void defineFilm(Svg& svg);
/// The picture of a moment, in seconds from its start.
void drawFilmPicture(Svg& svg, double moment);

} // namespace ventrel::art
