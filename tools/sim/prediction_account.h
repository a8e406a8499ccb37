// How good the prediction of conflicts was in a shift: for every near miss and collision, how long before it
// a player would have seen it coming; and what became of every warning.

#pragma once

#include <map>
#include <utility>
#include <vector>

#include "controller/prediction.h"
#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

/// What a shift adds up to.
struct PredictionCounts {
    // Of the near misses that were paid for, and of the collision:
    int ahead = 0;   ///< shown for the finder's whole last move, or for longer
    int ordered = 0; ///< shown at once, but an order to one of the two had only brought it about in that move
    int entered = 0; ///< the same of a flight that had only entered in that move
    int missed = 0;  ///< not shown in time, for no such reason
    // Of the pairs that were warned of, from their first ring to their last:
    int cameTrue = 0;
    int averted = 0;    ///< by an order to one of them
    int falseAlarm = 0; ///< nothing came of it, although nobody was told anything
};

/// Predicts anew after every step and every order, as the game does for its player, and keeps account.
class PredictionAccount final : public Recorder {
public:
    /// The account is written as one JSON object when the run has ended.
    PredictionAccount(Output& output, const Game& game) : Recorder{game}, output_{output} {}

    const PredictionCounts& counts() const { return counts_; }

    void reported(const Report& report) override;
    void shiftSetUp() override;
    void orderGiven(FlightIndex flight, const PanelOrder& order) override;
    void orderExecuted(FlightIndex flight, OrderResult result) override;
    void stepTaken() override;
    void runEnded(const RunResult& result) override;

private:
    using Pair = std::pair<FlightIndex, FlightIndex>; // the earlier one in the table first
    struct Warning {
        ClockSeconds since;
        bool isOrdered = false;
        bool hasCome = false;
    };

    void judge(FlightIndex finder, FlightIndex other);
    void predict();
    void close(const Warning& warning);

    Output& output_;
    PredictionCounts counts_;
    std::map<Pair, Warning> shown_;
    std::vector<ClockSeconds> lastMoves_;  // by flight
    std::vector<ClockSeconds> lastOrders_; // the same
};

} // namespace ventrel
