// Keeps a shift while it is played: each line is with the system before the game goes on.
//
// A receiver of the game's events. Whoever has the pilots speak tells it, too, whether a call drew.

#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "base/growing_file.h"
#include "replay/replay.h"
#include "sim/game.h"

namespace ventrel {

class ReplayWriter final : public SimulationEvents {
public:
    /// Of this game, which outlives the writer. Until it is begun it writes nothing.
    explicit ReplayWriter(const Game& game) : game_(game) {}

    /// The game's shift has just been set up from what the header says. A replay that is still being written
    /// stays as it is, without an end. Fails, and writes nothing, when the file cannot be made.
    Result<> begin(const std::filesystem::path& file, const ReplayHeader& header);

    /// The same for a shift that goes on where another one stood: the game has been played through `past`,
    /// with so many calls with radio noise.
    Result<> resume(const std::filesystem::path& file, const Replay& past, int calls);

    /// A call with radio noise was made, and drew how long the noise lasts, or nothing.
    void callMade(bool isDrawn);

    /// From now on it is no scored shift any more.
    void becomePractice();

    /// The player has left the shift, if one is still being written.
    void giveUp();

    bool isWriting() const { return growing_.has_value(); }

    /// Of the shift that is, or was last, written.
    const std::filesystem::path& file() const { return path_; }
    const ReplayHeader& header() const { return header_; }

    /// Told when a file cannot be written on, which ends the replay there; at most once a shift.
    std::function<void(const Failure&)> onFailure;

    void stepBegun() override;
    void lampChanged(LampLevel lit) override;
    void orderSent(FlightIndex flight, const PanelOrder& order) override;
    void shiftEnded(ShiftResult result) override;

private:
    void write(const std::string& line);
    void add(const decltype(ReplayEvent::what)& what);
    void end(ReplayOutcome outcome);

    const Game& game_;
    std::optional<GrowingFile> growing_; // while a shift is written
    std::size_t size_ = 0;               // of the file, in bytes
    std::filesystem::path path_;
    ReplayHeader header_;
    int calls_ = 0;        // with radio noise, so far
    bool isDrawn_ = false; // by calls at present
};

} // namespace ventrel
