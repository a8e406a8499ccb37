// The prediction of conflicts as the player has it: which flights are endangered now, for the thin ring, and
// the tone for one that has not been before.
//
// Looks ahead after a step and after an order, when the scope is shown next, and not at all while both aids
// are off.

#pragma once

#include <vector>

#include "sim/clock_seconds.h"
#include "sim/simulation_events.h"

namespace ventrel {

struct Shell;

class ConflictWatch final : public SimulationEvents {
public:
    explicit ConflictWatch(Shell& shell) : shell_(shell) {}

    /// Looks ahead, if anything has changed since it did.
    void follow();

    /// Whether the flight will come too close to another one, as of the last look.
    bool isEndangered(FlightIndex flight) const {
        return flight.place() < endangered_.size() && endangered_[flight.place()];
    }

    /// The game is another one now, or stands at another time: looks anew.
    void gameReplaced() { isStale_ = true; }

    void stepBegun() override { isStale_ = true; }
    /// The plan is made after this, so the scope follows when the order is through.
    void orderSent(FlightIndex flight, const PanelOrder& order) override;

private:
    Shell& shell_;
    std::vector<bool> endangered_; ///< by flight
    ClockSeconds seenStep_;        ///< of the game's last step when it looked
    bool isStale_ = true;
};

} // namespace ventrel
