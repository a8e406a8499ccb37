#include "controller/controller_stand_in.h"

#include <algorithm>

namespace ventrel {

namespace {

/// From a decision to its last order: all are sent well before the next step.
constexpr ClockSeconds ordersTake = 12_s;
/// From one order to the next, where there are few.
constexpr ClockSeconds unhurried = 4_s;

} // namespace

void ControllerStandIn::stepActed(const Game& game) {
    orders_.clear();
    const std::vector<ControllerOrder> decided = controller_.decide(game);
    const auto count = static_cast<int>(decided.size());
    int number = 0;
    for (const ControllerOrder& order : decided) {
        ++number;
        const ClockSeconds delay = std::min(number * unhurried, number * ordersTake / count);
        orders_.push_back({.at = game.clock + delay, .flight = order.flight, .order = order.order});
    }
}

std::optional<SteeredOrder> ControllerStandIn::next() const {
    return orders_.empty() ? std::nullopt : std::optional{orders_.front()};
}

} // namespace ventrel
