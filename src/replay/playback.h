// Plays a replay: the game it was made from, and then, one by one, what came to that game from outside.
//
//     Playback playback{std::move(replay)};
//     Game game = replayedGame(playback.replay(), airspace).value();
//     while (playback.next()) {
//         playback.playNext(game, events);
//     }
//
// Owns the replay and the place in it; the game is the caller's, whose clock may run in between, as long as
// nothing else of it changes.

#pragma once

#include <span>

#include "base/result.h"
#include "replay/replay.h"
#include "sim/game.h"
#include "sim/orders.h"

namespace ventrel {

/// The game as it was set up. Fails when the airspace is another one, or gives another shift.
Result<Game> replayedGame(const Replay& replay, const AirspacePtr& airspace);

class Playback {
public:
    explicit Playback(Replay replay) : replay_(std::move(replay)) {}

    const Replay& replay() const { return replay_; }

    /// What will be played next; none at the end.
    const ReplayEvent* next() const;

    /// All that is still to be played.
    std::span<const ReplayEvent> coming() const { return std::span{replay_.events}.subspan(next_); }

    /// Plays it: the clock stands at its time, and what happens is told to `events`. Calls draw after they
    /// were told, as they did in the shift. Returns what an order came to; none for anything else.
    std::optional<OrderResult> playNext(Game& game, SimulationEvents& events);

    /// Plays all that was there until that time of the clock, and leaves the clock there.
    void playUntil(Game& game, ClockSeconds clock, SimulationEvents& events);

    /// Where the game parted from what the replay tells, the first time; none while they agree. It plays on
    /// all the same, as well as it goes.
    const std::optional<Failure>& deviation() const { return deviation_; }

    /// Of a game that has been played to the end: fails, by what differs, unless it came out as the replay
    /// tells, and where that tells no end.
    Result<> proven(const Game& game) const;

    /// What has been played of it, for a writer to go on from, and how many calls with radio noise.
    Replay past() const;
    int calls() const { return calls_; }

private:
    class Noise;

    using Outcome = std::optional<OrderResult>;
    Outcome play(const ReplayedStep& step, Game& game, SimulationEvents& events);
    Outcome play(const ReplayedLamp& lamp, Game& game, SimulationEvents& events);
    Outcome play(const ReplayedOrder& order, Game& game, SimulationEvents& events);
    /// One more call with radio noise; whether it drew.
    bool countCall();
    void deviate(const std::string& what);

    Replay replay_;
    std::size_t next_ = 0;
    int calls_ = 0;                // with radio noise
    std::size_t noiseChanges_ = 0; // that have come into force
    std::optional<Failure> deviation_;
};

} // namespace ventrel
