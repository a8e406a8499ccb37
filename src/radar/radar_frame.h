// One frame of the radar, layer by layer, into its back buffer; and the blinking of new flights between
// frames.

#pragma once

#include "radar/radar_window.h"

namespace ventrel {

/// Map, routes, aircraft with their tags, score, clouds, and the word that tells of a pause, of a frame that
/// has been made (see makeFrame). There is a map.
void paintRadarFrame(RadarWindow& radar);

/// What the aids read of the radar.
AidScene aidScene(const RadarWindow& radar);

/// Paints the scope anew as it stands, new flights blinking, and puts it on the screen under the sweep.
void refreshRadar(RadarWindow& radar);

/// Shows flights that became active within the last 15 clock seconds on even seconds, and hides them on odd
/// ones, touching only their own little boxes.
void blinkNewFlights(RadarWindow& radar, ClockSeconds now);

} // namespace ventrel
