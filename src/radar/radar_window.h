// The radar scope: the round display on which the player sees the traffic and chooses aircraft.
//
// The record owns the window's pictures and the sweep; it reads the game.
// What it wants from other rooms it asks of its callbacks. The shell creates it, ticks it, and repaints it
// when things change.

#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "console/radar_layout.h"
#include "options/options.h"
#include "platform/desktop/desktop.h"
#include "platform/text/font.h"
#include "radar/flight_drawing.h"
#include "radar/flight_ways.h"
#include "radar/scope_aids.h"
#include "radar/sweep.h"
#include "sim/game.h"

namespace ventrel {

inline constexpr int radarWindowId = 511;
inline constexpr int cloudPictureCount = 16;

/// How often the score is reported.
inline constexpr ClockSeconds scoreReportInterval = 900_s;

/// What the radar asks of the rest of the program.
struct RadarCallbacks {
    std::function<bool()> isPaused;
    /// A frame is about to be shown: the game is to make it (see makeFrame).
    std::function<void()> makeFrame;
    /// Another five clock seconds have passed: the small scope's dots are due.
    std::function<void()> updateBlips;
    /// A quarter of an hour has passed on the clock: the score is to be reported.
    std::function<void()> reportScore;
    /// The player pressed on the scope: automatic selection is free again.
    std::function<void()> resetTouch;
    /// Whether a selection at this moment would take the panel away from the player.
    std::function<bool()> isTouched;
    /// The flight is to become the selected one; it is not yet.
    std::function<void(const FlightHit&)> select;
    /// The order menu is wanted there, for the selected flight.
    std::function<void(Point screen)> showOrderMenu;
    /// The order being composed for a flight on the scope, if it could be flown.
    std::function<std::optional<UnsentOrder>()> unsentOrder = [] { return std::nullopt; };
    /// Whether the flight will come too close to another one, unless one of them is told something.
    std::function<bool(FlightIndex)> isEndangered = [](FlightIndex) { return false; };
};

/// What the radar reads, owned by others for as long as it lives.
struct RadarSources {
    const Game& game;
    const Options& options;
    FontSet& fonts;
    const CursorImage& hand;
};

struct RadarWindow {
    Desktop& desktop;
    RadarSources sources;
    RadarCallbacks callbacks;
    const RadarLayout& layout;

    Window window = {};
    Region scope = {};                       ///< the round part of the window
    Bitmap backBuffer = {};                  ///< the latest frame, without the sweep
    std::optional<Bitmap> map = {};          ///< what does not move; none until the first game
    std::optional<Bitmap> airportImage = {}; ///< the airport's own picture, at most of the scope's size
    std::vector<Bitmap> clouds = {};
    Sweep sweep = {};
    ScopeAids aids = {};
    ClockSeconds lastClockSeen = {};
};

/// Makes the window, hidden, as a child of `parent`. The record must stay where it is from then on.
void RadarCreate(RadarWindow& radar, const Window& parent, std::vector<Bitmap> clouds);

/// Decodes the airport's picture from its file. A picture that cannot be decoded leaves the airport without
/// one.
void RadarDecodePicture(RadarWindow& radar);

/// Composes the map of the loaded airport inside `frame` and shows the window.
void RadarBuildMap(RadarWindow& radar, const Bitmap& frame);

void RadarHide(RadarWindow& radar);

/// Marks the whole window to be painted.
void RadarRepaint(RadarWindow& radar);

/// Shows at once what the aids have to show anew, without a frame of the game.
void RadarRefresh(RadarWindow& radar);

/// Moves the sweep and does what a new clock value asks for. Returns when it wants its next call: none while
/// the window is hidden or nothing of it moves by itself.
std::optional<Millis> RadarTick(RadarWindow& radar);

/// Selects the flight at that radar pixel, unless the player is busy on the panel. Whether there is one.
bool RadarSelectAt(RadarWindow& radar, Point point);

/// Rings spread from the flight for eight seconds, or until another game runs. False when the program is
/// quitting.
bool RadarCollisionRings(RadarWindow& radar, FlightIndex flight);

} // namespace ventrel
