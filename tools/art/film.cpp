#include "tools/art/film.h"

#include "tools/art/airfield.h"
#include "tools/art/airliner.h"
#include "tools/art/easing.h"
#include "tools/art/film_flight.h"
#include "tools/art/film_room.h"

namespace ventrel::art {

namespace {

// The cuts, in seconds.
constexpr double touchDownFrom = 2.05;
constexpr double roomFrom = 5.25;
constexpr double fadeFrom = 9.35;
constexpr double filmEnd = double(filmPictures) / filmRate;

void drawFade(Svg& svg, double moment) {
    const double darkness = 1 - eased(moment, 0, 0.5) + eased(moment, fadeFrom, filmEnd - 0.05);
    if (darkness > 0) {
        svg.rect({0, 0, double(filmSize.width), double(filmSize.height)}, 0,
                 "fill=\"#000\" opacity=\"" + number(darkness) + '"');
    }
}

} // namespace

void defineFilm(Svg& svg) {
    svg.define(glowMaterials());
    svg.define(airfieldMaterials(filmSize.height * 0.5));
    svg.define(flightMaterials());
    svg.define(roomMaterials());
    svg.define("<radialGradient id=\"lens\" cx=\".5\" cy=\".5\" r=\".74\"><stop offset=\".3\" "
               "stop-opacity=\"0\"/><stop offset=\".6\" stop-opacity=\".07\"/><stop offset=\".8\" "
               "stop-opacity=\".2\"/><stop offset=\"1\" stop-opacity=\".42\"/></radialGradient>\n");
}

void drawFilmPicture(Svg& svg, double moment) {
    if (moment < touchDownFrom) {
        drawApproach(svg, moment);
    } else if (moment < roomFrom) {
        drawTouchDown(svg, moment);
    } else {
        drawRoom(svg, moment);
    }
    svg.rect({0, 0, double(filmSize.width), double(filmSize.height)}, 0, "fill=\"url(#lens)\"");
    drawFade(svg, moment);
}

std::string drawFilmSheet(int sheet) {
    Svg svg(filmSheetSize);
    defineFilm(svg);
    for (int i = 0; i < filmSheetPictures; ++i) {
        svg.openPicture(onFilmSheet(i).topLeft(), filmSize);
        drawFilmPicture(svg, double(sheet * filmSheetPictures + i) / filmRate);
        svg.closePicture();
    }
    return svg.text();
}

} // namespace ventrel::art
