// Has a replay play a game in the player's place, on his console.

#pragma once

#include <memory>

#include "replay/playback.h"
#include "sim/stand_in.h"

namespace ventrel {

class ReplayStandIn final : public StandIn {
public:
    /// Of the game that the playback is at.
    ReplayStandIn(std::shared_ptr<Playback> playback, const Game& game);

    std::optional<SteeredOrder> next() const override;
    void nextIsDone() override {}

    bool isWhole() const override { return true; }
    void play(Game& game, SimulationEvents& events, const OrderSight& sending) override;

private:
    std::optional<SteeredOrder> orderOf(const ReplayEvent& event) const;

    std::shared_ptr<Playback> playback_;
    int planeCount_;
    int pointCount_;
};

} // namespace ventrel
