#include "tools/sim/shift_run.h"

#include "controller/controller.h"

namespace ventrel {

namespace {

/// An order for a flight that is not in play, or not yet, is passed over.
bool isPassedOver(OrderVerdict verdict) {
    return verdict == OrderVerdict::notInPlay || verdict == OrderVerdict::notActive;
}

/// Sends the orders whose time has come off the front of the list.
void sendOrders(Game& game, Recorder& recorder, std::span<const ScriptedOrder>& orders) {
    while (!orders.empty() && orders.front().clock <= game.clock) {
        const ScriptedOrder& next = orders.front();
        orders = orders.subspan(1);
        if (!isPassedOver(judgeOrder(game, next.flight, next.order))) {
            recorder.send(game, next.flight, next.order);
        }
    }
}

} // namespace

Steering automaticSteering(const Game& game, int lookAhead) {
    return [controller = Controller{game, lookAhead}](Game& now, Recorder& recorder) {
        for (const ControllerOrder& next : controller.decide(now)) {
            recorder.send(now, next.flight, next.order);
        }
    };
}

void runShift(Game& game, Recorder& recorder, const RunPlan& plan) {
    std::span<const ScriptedOrder> orders = plan.orders;

    if (plan.hearsPilots) {
        recorder.hearPilots(game.random);
    }
    recorder.shiftSetUp();
    while (timeOfNextStep(game) <= plan.until && step(game, recorder)) {
        recorder.stepTaken();
        sendOrders(game, recorder, orders);
        if (plan.steering) {
            plan.steering(game, recorder);
        }
    }
    recorder.runEnded(recorder.result());
}

} // namespace ventrel
