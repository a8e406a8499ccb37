// The automatic controller in the player's place: decides after every step, and sends what it has decided one
// order after the other before the next one.

#pragma once

#include <deque>

#include "controller/controller.h"
#include "sim/stand_in.h"

namespace ventrel {

class ControllerStandIn final : public StandIn {
public:
    /// For a game whose shift is set up; keeps no reference to it.
    explicit ControllerStandIn(const Game& game) : controller_{game} {}

    void stepActed(const Game& game) override;
    std::optional<SteeredOrder> next() const override;
    void nextIsDone() override { orders_.pop_front(); }

private:
    Controller controller_;
    std::deque<SteeredOrder> orders_;
};

} // namespace ventrel
