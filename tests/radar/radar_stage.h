// A radar on a headless machine, over a game that the test fills with flights; what it asks of the rest of
// the program is written down.

#pragma once

#include "../controls/console_stage.h"
#include "radar/radar_frame.h"

namespace ventrel {

inline constexpr Colour frameColour = consoleGrey;
inline constexpr Size cloudSize{40, 30};

/// The log has "frame", "blips", "report", "reset", "select 0 place 1", "menu 20,30".
struct RadarStage : ConsoleStage {
    /// A running game without flights or map points, its map shown in a frame of one colour. No sweep.
    explicit RadarStage(const RadarLayout& layout = smallRadarLayout);

    bool paused = false;
    bool touched = false;
    RadarWindow radar;

    /// An active flight, long in the air.
    Flight& flyAt(Cell cell, int heading = 0) {
        Flight& flight = fly(heading);
        flight.current().cell = cell;
        return flight;
    }
    /// The map again, with what the game and the options hold now.
    void buildMap() { RadarBuildMap(radar, console); }
    /// A whole frame, at once.
    void frame() {
        RadarRepaint(radar);
        radar.window.update();
    }

    /// All that the screen shows of the radar, whether or not it has been sent.
    Bitmap shown() const { return picture(radar.window); }
    /// The pixels of that colour that it shows inside an area.
    int count(Colour colour, const Rect& area) const { return ventrel::count(shown(), colour, area); }
    /// The radar's square of what has been sent to the machine's screen.
    Bitmap sent() const { return crop(backend.screen(), radar.window.bounds()); }
};

} // namespace ventrel
