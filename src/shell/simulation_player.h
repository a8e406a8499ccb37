// Plays what the simulation tells: lines on the ticker, calls on the radio, lamps, strips and the panel.

#pragma once

#include "sim/simulation_events.h"

namespace ventrel {

struct Shell;

class SimulationPlayer final : public SimulationEvents {
public:
    explicit SimulationPlayer(Shell& shell) : shell_(shell) {}

    void reported(const Report& report) override;
    void pilotSpoke(const RadioCall& call) override;
    void lampChanged(LampLevel lit) override;
    void orderSent(FlightIndex flight, const PanelOrder& order) override;
    void panelChanged() override;
    void stripsChanged() override;
    void flightActivated(FlightIndex flight) override;
    void shiftEnded(ShiftResult result) override;

private:
    Shell& shell_;
};

} // namespace ventrel
