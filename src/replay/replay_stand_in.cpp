#include "replay/replay_stand_in.h"

namespace ventrel {

ReplayStandIn::ReplayStandIn(std::shared_ptr<Playback> playback, const Game& game)
    : playback_{std::move(playback)}, planeCount_{game.planeCount()}, pointCount_{game.vorCount()} {}

/// Of a damaged file an order may name what there is not; such a one is not shown.
std::optional<SteeredOrder> ReplayStandIn::orderOf(const ReplayEvent& event) const {
    const auto* const order = std::get_if<ReplayedOrder>(&event.what);
    const bool canBeShown = order != nullptr && order->flight.number() < planeCount_ &&
                            order->target <= pointCount_ && isHeading(order->heading);
    if (!canBeShown) {
        return std::nullopt;
    }
    return SteeredOrder{event.clock, order->flight, panelOrderFrom(*order, pointCount_)};
}

std::optional<SteeredOrder> ReplayStandIn::next() const {
    for (const ReplayEvent& event : playback_->coming()) {
        if (const auto order = orderOf(event)) {
            return order;
        }
    }
    return std::nullopt;
}

void ReplayStandIn::play(Game& game, SimulationEvents& events, const OrderSight& sending) {
    const ClockSeconds now = game.clock;
    for (const ReplayEvent* next = playback_->next();
         next != nullptr && next->clock <= now && game.isRunning(); next = playback_->next()) {
        game.clock = next->clock;
        const auto order = orderOf(*next);
        if (order && isHeard(judgeOrder(game, order->flight, order->order))) {
            sending(*order);
        }
        playback_->playNext(game, events);
    }
    if (!game.isRunning()) {
        return;
    }
    game.clock = now;
    if (isStepDue(game)) {
        game.lastStepTime = now; // this step was passed over
    }
}

} // namespace ventrel
