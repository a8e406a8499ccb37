// A radar on a headless machine, over a game that the test fills with flights; what it asks of the rest of
// the program is written down.

#pragma once

#include <string>
#include <vector>

#include "platform/headless/script.h"
#include "radar/radar_frame.h"

namespace ventrel {

using Lines = std::vector<std::string>;

inline constexpr Colour frameColour = Colour::rgb(90, 90, 90);
inline constexpr Colour flightGreen = Colour::rgb(0, 190, 0);
inline constexpr Colour selectedWhite = Colour::rgb(240, 240, 240);
inline constexpr Colour routeBlue = Colour::rgb(40, 80, 220);
inline constexpr Colour black = Colour::rgb(0, 0, 0);

struct RadarStage {
    /// A running game without flights or map points, its map shown in a frame of one colour. No sweep.
    explicit RadarStage(const RadarLayout& layout = smallRadarLayout);

    HeadlessBackend backend;
    Desktop desktop;
    Script script{backend};
    FontSet fonts;
    GameState game;
    Options options;
    CursorImage hand;
    Window main;
    RadarWindow radar;

    ClockSeconds clock = 100;
    bool paused = false;
    bool touched = false;
    Lines log; ///< "lamp 1", "blips", "report", "reset", "select 0 place 1", "menu 20,30"
    int scrollerTurns = 0;

    /// An active flight; its callsign is "AA" and its number.
    Flight& fly(Cell cell, int heading = 0);
    /// The map again, with what the game and the options hold now.
    void buildMap();
    /// A whole frame, at once.
    void frame();
    /// Runs the program through the script, and ends it.
    void play();
    /// The lines so far, and forgets them.
    Lines take();

    /// What the screen shows at a radar pixel.
    Colour at(Point p) const { return radar.window.canvas().pixel(p); }
    /// The pixels of that colour inside an area of the radar.
    int count(Colour colour, const Rect& area) const;
    /// All that the screen shows of the radar, whether or not it has been sent.
    Bitmap shown() const;
    /// The radar's square of what has been sent to the machine's screen.
    Bitmap sent() const;
};

/// A part of a picture.
Bitmap crop(const Bitmap& picture, const Rect& area);

} // namespace ventrel
