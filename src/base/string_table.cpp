#include "base/string_table.h"

#include <algorithm>
#include <array>

namespace ventrel {

namespace {

struct Entry {
    TextId id;
    std::string_view text;
};

// clang-format off
constexpr std::array table{std::to_array<Entry>({
    {TextId::cannotOpenFile, "Can't open the file %s. Please re-install."},
    {TextId::displayModeFailed,
     "Display Mode failed to switch from 256 colors. Perhaps DirectX is not installed on your "
     "system, or your video driver is too old."},
    {TextId::notEnoughMemory,
     "Not enough memory. Tried to allocate %l bytes and received a failure. Close down some "
     "apps or adjust your Windows swap file settings."},
    {TextId::fileReadFailed,
     "File read failed. Tried to read %ld bytes from %s and could only read %ld bytes. Try "
     "re-installing. Something is seriously wrong here."},
    {TextId::confirmQuitGame, "Are you sure you want to quit the game in progress?"},
    {TextId::requestDeparture, "%s request departure at %s"},
    {TextId::enteringAirspace, "%s entering airspace, proceeding to %s"},
    {TextId::towerWaiting, "Tower, %s is waiting at %s for departure"},
    {TextId::stillWaiting, "%s, we're still waiting for departure at %s"},
    {TextId::immediateDeparture, "%s, we need immediate departure at %s"},
    {TextId::missedApproachTooHigh, "%s, missed approach at %s- altitude too high"},
    {TextId::missedApproachHeading, "%s, missed approach at %s- incorrect heading"},
    {TextId::missedApproachTooLow, "%s, missed approach at %s- altitude too low"},
    {TextId::leavingAirspace, "%s, leaving airspace at %s- good day"},
    {TextId::landing, "%s is landing at %s, good day"},
    {TextId::nearMiss, "%s, Emergency! Near miss with %s"},
    {TextId::flightLost, "%s has been lost "},
    {TextId::soundFailed,
     "DirectSound failed to initialize. Either another application is using it, your sound "
     "hardware is not supported, or you do not have DirectX installed on your computer."},
    {TextId::pressReleaseDate, "%s\r\nFOR IMMEDIATE RELEASE"},
    {TextId::confirmResolution,
     "You must restart VENTREL in order for resolution changes to take effect. Do you want to "
     "exit VENTREL now?"},
    {TextId::pressReleaseAccident,
     "Washington, DC : A mid-air collision occured today over the %s terminal control "
     "facility involving two jet liners. %s and %s collided head-on at an altitude of %d feet."},
    {TextId::pressReleaseController,
     "Air Traffic Controller %s was on duty at the time, and was solely responsible for the "
     "accident. FAA officials have launched a full investigation with possible criminal "
     "charges pending against %s.\r\n\r\n\r\n##### End of Release"},
    {TextId::cannotExit, "%s, cannot exit to  %s VOR- altitude too low"},
    {TextId::scoreSoFar, "%s's score so far: %d"},
    {TextId::pleaseEnterName, "Please enter name."},
    {TextId::cannotOpenForWriting, "Can't open the file %s for writing. Please re-install."},
    {TextId::fileWriteFailed,
     "File write failed. Tried to write %ld bytes from %s and could only write %ld bytes. Try "
     "re-installing. Something is seriously wrong here. "},
    {TextId::gameOver, "Game Over.   Score: %d out of a possible %d "},
    {TextId::welcome, "Welcome %s-  First plane arrives at %02d:%02d"},
    {TextId::tooCloseForDirect, "%s is too close to %s for a direct VOR course"},
    {TextId::soundInUse,
     "Sound hardware is already in use.\n VENTREL is still playable, but no sound will be "
     "heard. To hear game sounds, shutdown all other applications that can play sounds, then "
     "restart VENTREL. "},
    {TextId::noAirports,
     "Can't find or load any airports. Make sure APT files are located in the 'apt' folder."},
    {TextId::planesOutOfRange, "The total number of planes must be between 1 and 99."},
    {TextId::minutesOutOfRange, "Shift length must be between 1 and 120 minutes."},
    {TextId::confirmDeleteScores,
     "Are you sure you want to permanently delete all of the high scores?"},
    {TextId::tooManyPlanes,
     "There are too many planes for the shift time.\nEither decrease the number of planes or "
     "increase the number of minutes in the shift.\nAs a general rule, you can't have more "
     "than 4 planes per minute of shift time."},
    {TextId::confirmFullScreen,
     "You must restart VENTREL in order for the full screen option to take effect. Do you "
     "want to exit VENTREL now?"},
    {TextId::airportIncomplete,
     "The '%s' apt file (%s) is incomplete and cannot be used by Ventrel. This file requires "
     "further editing with the Airport Editor before it can be used."},
    {TextId::colourDepthTooLow,
     "Your video color resolution is too low to work with Ventrel in the non-full screen "
     "mode. You will have to go to the options menu and switch to Full Screen mode in order "
     "to have the proper colors."},
    {TextId::chooseAirport, "Please select an airport by clicking the CHOOSE button."},
})};
// clang-format on

} // namespace

std::string_view StringTableText(TextId id) {
    const auto* const found = std::ranges::find(table, id, &Entry::id);
    return found == table.end() ? std::string_view{} : found->text;
}

std::string FormatStringId(TextId id, std::initializer_list<FormatValue> values) {
    return FormatText(StringTableText(id), values);
}

} // namespace ventrel
