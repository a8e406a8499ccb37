#include "tools/sim/shift_run.h"

#include <optional>

#include "sim/flight_step.h"
#include "tools/sim/autopilot.h"

namespace ventrel {

namespace {

constexpr ClockSeconds beforeFirstStep = -1;

/// Sends the orders whose time has come off the front of the list. A flight that cannot hear them is passed
/// over.
void sendOrders(Simulation& simulation, Recorder& recorder, std::span<const ScriptedOrder>& orders) {
    while (!orders.empty() && orders.front().clock <= recorder.clock()) {
        const ScriptedOrder& next = orders.front();
        orders = orders.subspan(1);
        const Flight& flight = simulation.game.flight(next.flight);
        if (flight.inPlay && flight.isActive()) {
            recorder.send(simulation, next.flight, next.order);
        }
    }
}

} // namespace

void runShift(GameState& game, RandomGenerator& random, Recorder& recorder, const RunPlan& plan) {
    AlertLamps lamps;
    Simulation simulation{game, lamps, random, recorder};
    std::optional<Autopilot> autopilot;
    if (plan.autopilot) {
        autopilot.emplace(game);
    }
    std::span<const ScriptedOrder> orders = plan.orders;

    recorder.shiftSetUp(game);
    game.lastStepTime = beforeFirstStep;
    game.gameRunning = true;
    for (ClockSeconds now = 0; now <= plan.until; now += stepInterval) {
        recorder.setClock(now);
        if (!SimulationStep(simulation, now)) {
            break;
        }
        setLamp(lamps, recorder, gatherAlertLevel(game));
        recorder.stepTaken(game);
        sendOrders(simulation, recorder, orders);
        if (autopilot) {
            autopilot->steer(simulation, recorder);
        }
    }
    game.gameRunning = false;
    recorder.runEnded(game, recorder.result());
}

} // namespace ventrel
