// Several receivers of what the simulation tells: each event goes to all of them in turn.

#pragma once

#include <vector>

#include "sim/simulation_events.h"

namespace ventrel {

class EventRelay final : public SimulationEvents {
public:
    /// From the next event on the receiver is told, too, after all that were added before. It stays the
    /// caller's, and must be taken out before it goes. Not to be called during an event.
    void add(SimulationEvents& receiver) { receivers_.push_back(&receiver); }
    /// Nothing when it is not among the receivers. Not to be called during an event.
    void remove(SimulationEvents& receiver) { std::erase(receivers_, &receiver); }

    void stepBegun() override;
    void reported(const Report& report) override;
    void pilotSpoke(const RadioCall& call) override;
    void lampChanged(LampLevel lit) override;
    void scoreChanged(const ScoreChange& change) override;
    void orderSent(FlightIndex flight, const PanelOrder& order) override;
    void panelChanged() override;
    void stripsChanged() override;
    void flightActivated(FlightIndex flight) override;
    void shiftEnded(ShiftResult result) override;

private:
    void tellAll(auto tell);

    std::vector<SimulationEvents*> receivers_;
};

} // namespace ventrel
