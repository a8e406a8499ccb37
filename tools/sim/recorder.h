// What writes a shift down while it is run: the simulation's own events, and what the run adds to them.

#pragma once

#include <optional>

#include "sim/orders.h"

namespace ventrel {

/// How a run ended: what the step told, or nothing when its time was up.
using RunResult = std::optional<ShiftResult>;

class Recorder : public SimulationEvents {
public:
    /// Everything from now on happens at this time.
    void setClock(ClockSeconds clock) { clock_ = clock; }
    ClockSeconds clock() const { return clock_; }

    virtual void shiftSetUp(const GameState& game) = 0;
    virtual void orderGiven(const GameState& /*game*/, FlightIndex /*flight*/, const PanelOrder& /*order*/) {}
    virtual void orderExecuted(FlightIndex /*flight*/, OrderResult /*result*/) {}
    /// After a step that did not end the shift, with the lamps as they are then.
    virtual void stepTaken(const GameState& game) = 0;
    virtual void runEnded(const GameState& game, const RunResult& result) = 0;

    /// What `shiftEnded` has told.
    const RunResult& result() const { return result_; }

    /// Sends an order, framed by the two.
    void send(Simulation& simulation, FlightIndex flight, const PanelOrder& order);

private:
    void shiftEnded(ShiftResult result) override { result_ = result; }

    ClockSeconds clock_ = 0;
    RunResult result_;
};

} // namespace ventrel
