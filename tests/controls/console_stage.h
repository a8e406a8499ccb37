// A plain console on a headless machine, over a game that the test fills with flights.

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "console/window_size.h"
#include "options/options.h"
#include "platform/desktop/desktop.h"
#include "platform/headless/script.h"
#include "platform/text/font.h"
#include "sim/game.h"

namespace ventrel {

using Lines = std::vector<std::string>;

inline constexpr Colour consoleGrey = Colour::rgb(110, 112, 108);
inline constexpr Colour flightGreen = Colour::rgb(0, 190, 0);
inline constexpr Colour routeBlue = Colour::rgb(40, 80, 220);
inline constexpr Colour selectedWhite = Colour::rgb(240, 240, 240);
inline constexpr Colour black = Colour::rgb(0, 0, 0);

struct ConsoleStage {
    /// A running game over three map points: the fixes "ALB" and "SEA", and the airport "JFK" in between.
    explicit ConsoleStage(Size size = smallWindow);

    HeadlessBackend backend;
    Desktop desktop;
    Script script{backend};
    FontSet fonts;
    Game game;
    Options options;
    CursorImage hand;
    CursorImage arrow;
    Bitmap console;
    Window main;
    ClockSeconds& clock = game.clock; ///< stands at 100
    Lines log;

    /// An active flight from the edge to the airport at 5000 feet; its callsign is "UA" and its number.
    Flight& fly(int heading = 90);
    /// Takes other map points.
    void use(std::vector<Vor> points);
    /// Counts the listed flights as the simulation's step does.
    void countListed();
    /// Runs the program through the script, and ends it.
    void play();
    Lines take() { return std::exchange(log, {}); }
    /// What the screen shows of a window, painted up to date.
    Bitmap picture(const Window& window) const;
};

/// How many pixels of the picture have that colour.
int count(const Bitmap& picture, Colour colour, const Rect& area);

/// A part of a picture.
Bitmap crop(const Bitmap& picture, const Rect& area);

} // namespace ventrel
