// The player's settings, one number for each key of section "Options" of the options file.
//
// Read once at start-up and written once at shutdown; in between the menus and dialogs change the record
// alone. Nothing is checked on reading: of a flag, any number but 0 counts as on.

#pragma once

#include "base/profile_file.h"

namespace ventrel {

/// Values of `resolution`.
inline constexpr int smallResolution = 2; ///< 800 x 600
inline constexpr int largeResolution = 3; ///< 1024 x 768

struct Options {
    int autoSelect = 0; ///< select every flight when it becomes active
    int showGrid = 0;   ///< draw the grid on the radar map
    int music = 1;
    int effects = 1;       ///< sound effects
    int voice = 1;         ///< pilot voices
    int resolution = 0;    ///< another value than the two: chosen from the screen
    int singleSound = -1;  ///< the one voice set of all pilots, or -1; never written back
    int showRoutes = 1;    ///< draw the routes of flights on a direct course
    int mapDetails = 1;    ///< draw the picture under the radar map
    int stormTrak = 1;     ///< random cloud cover
    int radarSweep = 1;    ///< draw the sweep
    int windowed = 0;      ///< a window rather than the full screen
    int airportSelect = 0; ///< index into the sorted airport catalogue
    int directEntry = 1;   ///< flights enter on a direct course
    int customSkill = 1;   ///< kept for its file alone
    int customPlanes = 25;
    int customSched = 2100; ///< length of a Custom shift in clock seconds
    int customBonus = 475;  ///< bonus points of a Custom shift

    friend bool operator==(const Options&, const Options&) = default;
};

/// Missing keys take their defaults; that of the Custom bonus follows from the planes and length just read.
Options ReadOptions(const ProfileFile& profile);

/// Sets every key but `SingleSound`. The caller saves the file.
void WriteOptions(const Options& options, ProfileFile& profile);

} // namespace ventrel
