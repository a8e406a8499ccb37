// What a player waits for: notices whether a step has brought anything that asks for a look or an order.

#pragma once

#include <vector>

#include "sim/simulation_events.h"

namespace ventrel {

struct Flight;
struct Game;

class EventWatch final : public SimulationEvents {
public:
    /// From here on: nothing has happened, and the flights are as they are now.
    void begin(const Game& game);

    /// Whether anything has happened since: a line was told of, a lamp lit, points changed but for an order,
    /// a flight came or the shift ended; or a flight has taken off, reached its altitude, flown its course to
    /// the end, or begun to circle.
    bool hasHappened(const Game& game) const;

    void reported(const Report&) override { isTold_ = true; }
    void lampChanged(LampLevel lit) override { isTold_ = isTold_ || lit != LampLevel::none; }
    void scoreChanged(const ScoreChange& change) override {
        isTold_ = isTold_ || change.cause != ScoreCause::order;
    }
    void flightActivated(FlightIndex) override { isTold_ = true; }
    void shiftEnded(ShiftResult) override { isTold_ = true; }

private:
    /// What a flight is still about.
    struct Business {
        bool isOnGround = false;
        bool changesAltitude = false;
        bool hasCourseLeft = false;
        bool holds = false;
    };
    static Business businessOf(const Flight& flight);

    bool isTold_ = false;
    std::vector<Business> business_; ///< by flight
};

} // namespace ventrel
