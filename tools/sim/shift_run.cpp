#include "tools/sim/shift_run.h"

#include <algorithm>

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

/// Orders are framed by what the recorder adds to them.
void playEvent(Game& game, Recorder& recorder, Playback& playback, const ReplayEvent& event) {
    const auto* const order = std::get_if<ReplayedOrder>(&event.what);
    if (order != nullptr) {
        game.clock = event.clock;
        recorder.orderGiven(order->flight, panelOrderFrom(*order, game.vorCount()));
    }
    if (const auto result = playback.playNext(game, recorder.events())) {
        recorder.orderExecuted(order->flight, *result);
    }
}

} // namespace

Steering automaticSteering(const Game& game, int lookAhead) {
    return ControllerPool{lookAhead}.steeringOf(game);
}

Steering ControllerPool::steeringOf(const Game& game) {
    auto known = std::ranges::find_if(
        entries_, [&](const Entry& entry) { return std::ranges::equal(*entry.points, *game.points); });
    if (known == entries_.end()) {
        known = entries_.insert(known, {game.points, std::make_shared<const Controller>(game, lookAhead_)});
    }
    return [controller = known->controller](Game& now, Recorder& recorder) {
        for (const ControllerOrder& next : controller->decide(now)) {
            recorder.send(now, next.flight, next.order);
        }
    };
}

void runShift(Game& game, Recorder& recorder, const RunPlan& plan) {
    std::span<const ScriptedOrder> orders = plan.orders;

    if (plan.hearsPilots) {
        recorder.hearPilots(game.random);
    }
    if (plan.replay != nullptr) {
        recorder.keepReplay(*plan.replay);
    }
    recorder.shiftSetUp();
    while (timeOfNextStep(game) <= plan.until && step(game, recorder.events())) {
        recorder.stepTaken();
        sendOrders(game, recorder, orders);
        if (plan.steering) {
            plan.steering(game, recorder);
        }
    }
    if (plan.replay != nullptr && game.isRunning()) {
        plan.replay->giveUp();
    }
    recorder.runEnded(recorder.result());
}

void runReplay(Game& game, Recorder& recorder, Playback& playback, ClockSeconds until) {
    recorder.shiftSetUp();
    bool isInStep = false; // its row is due once its lamps are lit
    const auto endStep = [&] {
        if (isInStep && game.isRunning()) {
            recorder.stepTaken();
        }
        isInStep = false;
    };
    for (const auto* next = playback.next(); next != nullptr && next->clock <= until;
         next = playback.next()) {
        if (!std::holds_alternative<ReplayedLamp>(next->what)) {
            endStep();
        }
        playEvent(game, recorder, playback, *next);
        isInStep = isInStep || std::holds_alternative<ReplayedStep>(next->what);
    }
    endStep();
    recorder.runEnded(recorder.result());
}

} // namespace ventrel
