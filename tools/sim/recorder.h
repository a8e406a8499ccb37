// What writes a shift down while it is run: the simulation's own events, and what the run adds to them.

#pragma once

#include <optional>

#include "replay/replay_writer.h"
#include "sim/event_relay.h"
#include "sim/game.h"
#include "sim/orders.h"

namespace ventrel {

/// How a run ended: what the step told, or nothing when its time was up.
using RunResult = std::optional<ShiftResult>;

class Recorder : public SimulationEvents {
public:
    /// Writes down this game, which outlives the recorder.
    explicit Recorder(const Game& game) : game_{game} { relay_.add(*this); }

    /// From now on pilots are heard: each call with radio noise draws its length from there, as it does in
    /// the game with its voices on.
    void hearPilots(RandomGenerator& random) { noise_ = &random; }

    /// From now on the shift is kept as a replay, too. The writer outlives the run.
    void keepReplay(ReplayWriter& replay);

    /// What the game is to tell: this recorder and whoever else keeps the shift.
    SimulationEvents& events() { return relay_; }

    virtual void shiftSetUp() = 0;
    virtual void orderGiven(FlightIndex /*flight*/, const PanelOrder& /*order*/) {}
    virtual void orderExecuted(FlightIndex /*flight*/, OrderResult /*result*/) {}
    /// After a step that did not end the shift, with the lamps as they are then.
    virtual void stepTaken() = 0;
    virtual void called(const RadioCall& /*call*/) {}
    virtual void runEnded(const RunResult& result) = 0;

    /// What `shiftEnded` has told.
    const RunResult& result() const { return result_; }

    /// Sends an order to the game, framed by the two.
    void send(Game& game, FlightIndex flight, const PanelOrder& order);

protected:
    const Game& game() const { return game_; }

private:
    void pilotSpoke(const RadioCall& call) override;
    void shiftEnded(ShiftResult result) override { result_ = result; }

    const Game& game_;
    RunResult result_;
    RandomGenerator* noise_ = nullptr; // none: nobody is heard
    ReplayWriter* replay_ = nullptr;   // none: no replay is kept
    EventRelay relay_;
};

} // namespace ventrel
