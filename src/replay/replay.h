// A replay: all that is needed to play a shift again to the byte. What the shift was set up from, and then
// everything that came to it from outside: its steps, its orders, the lamps that frames lit, and which calls
// drew from the generator.
//
// ReplayWriter keeps one while it is played, readReplay reads it, Playback plays it. The file is described in
// docs/formats.md.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/utc_time.h"
#include "sim/lamp_level.h"
#include "sim/plan.h"
#include "sim/shift_setup.h"

namespace ventrel {

struct Game;

/// A larger file is no replay, and none is written.
inline constexpr std::size_t largestReplay = std::size_t{16} << 20; // bytes

/// No line of a replay has a later clock, in seconds.
inline constexpr int latestReplayClock = 2'000'000'000;

enum class ReplayKind {
    scored,
    practice, ///< entered no high scores
    day,      ///< the Shift of the Day of the date on which it was begun
};

struct ReplayHeader {
    std::string program; ///< its version
    UtcMoment begun{};
    ReplayKind kind = ReplayKind::scored;
    std::string airspaceName; ///< Windows-1252
    std::string airspaceFile; ///< the file's name without folders
    std::uint64_t airspaceChecksum = 0;
    int width = smallLayout.windowWidth; ///< of the window: 800 or 1024
    Skill skill = Skill::normal;
    ShiftSize custom; ///< counts in a Custom shift
    bool cloudCover = false;
    bool directEntry = false;
    int voiceSetCount = 0;
    std::vector<Size> cloudSizes;
    std::string controllerName;  ///< Windows-1252
    ClockSeconds lastStepTime{}; ///< that the game before has left
    std::uint32_t seed = 0;      ///< the generator's state when the shift was set up
    int possibleScore = 0;
};

/// A step that acted, and what it found: so that whoever plays it again sees where the two part.
struct ReplayedStep {
    std::uint32_t random = 0; ///< the generator's state
    int score = 0;
};

/// Another lamp was lit, in a step or by a frame.
struct ReplayedLamp {
    LampLevel level = LampLevel::none;
};

/// An order that was sent and heard, in the numbers of an orders file.
struct ReplayedOrder {
    FlightIndex flight;
    int altitude = 0;
    int heading = 0;
    Speed speed = Speed::normal;
    int target = -1; ///< see directTargetNumber
    bool hold = false;
};

struct ReplayEvent {
    ClockSeconds clock;
    std::variant<ReplayedStep, ReplayedLamp, ReplayedOrder> what;
    int line = 0; ///< of the file, from 1
};

/// From the call with radio noise of that number on, counted from 0, calls draw or do not. At first none
/// does.
struct NoiseChange {
    int call = 0;
    bool isDrawn = false;
};

enum class ReplayOutcome { handled, collision, givenUp };

struct ReplayEnd {
    ClockSeconds clock;
    ReplayOutcome outcome = ReplayOutcome::givenUp;
    int score = 0;
};

struct Replay {
    ReplayHeader header;
    std::vector<ReplayEvent> events; ///< by clock
    std::vector<NoiseChange> noise;  ///< by call
    std::optional<ReplayEnd> end;    ///< none where the program ended before the shift
    ClockSeconds until;              ///< the clock of the last line
    int lastScore = 0;               ///< as far as the file tells
};

/// The order as it was sent, in an airspace of so many map points; and from it.
PanelOrder panelOrderFrom(const ReplayedOrder& order, int pointCount);
ReplayedOrder replayedOrder(FlightIndex flight, const PanelOrder& order, int pointCount);

/// The header of a game that has just been set up, with the generator at `seed`; the caller adds when it was
/// begun, its kind, and the airspace's file.
ReplayHeader replayHeader(const Game& game, const ShiftSetup& setup, std::uint32_t seed);

/// What the shift was set up from. The sizes are the header's own, which must outlive it.
ShiftSetup setupFrom(const ReplayHeader& header);

} // namespace ventrel
