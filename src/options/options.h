// The player's settings as a plain record: what the rooms that heed them need to know.
//
// The shell owns it. It is read from its file once at start-up and written when something was changed; in
// between the menus and dialogs change the record alone. Nothing is checked on reading: of a flag, any number
// but 0 counts as on.

#pragma once

namespace ventrel {

/// Values of `resolution`.
inline constexpr int smallResolution = 2; ///< 800 x 600
inline constexpr int largeResolution = 3; ///< 1024 x 768

/// The values here are those of missing keys.
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
    int musicVolume = 5;    ///< 1 to 5, the loudest; 0 is silent
    int soundVolume = 5;    ///< of effects and pilots, the same

    // Aids, which show more than the game alone does.
    int aidHeadingLines = 0; ///< where flights on headings will be
    int aidRunways = 0;      ///< numbers and centrelines of runways
    int aidHistory = 0;      ///< dots where flights were
    int aidPauseAtRim = 0;   ///< the word that tells of a pause leaves the middle of the scope
    int aidFullTags = 0;     ///< speed and destination in the tags
    int aidTidyTags = 0;     ///< tags give way to each other
    int aidLargeTags = 0;    ///< larger letters in the tags
    int aidOrderLine = 0;    ///< where the order on the panel would lead
    int aidUnsentMarks = 0;  ///< what EXEC would change is marked on the panel
    int aidConflicts = 0;    ///< rings around flights that will come too close
    int aidConflictTone = 0; ///< a soft tone when such a flight is new
    int aidColours = 0;      ///< colours and shapes for all eyes
    int aidCaptions = 0;     ///< what the pilots say can be read

    friend bool operator==(const Options&, const Options&) = default;
};

} // namespace ventrel
