// What became of a shift, as one JSON object: for whoever plays very many.

#pragma once

#include <array>
#include <cstddef>

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class SummaryWriter final : public Recorder {
public:
    SummaryWriter(Output& output, const Game& game, std::uint32_t seed)
        : Recorder{game}, output_{output}, seed_{seed} {}

    void scoreChanged(const ScoreChange& change) override;
    void shiftSetUp() override {}
    void orderExecuted(FlightIndex flight, OrderResult result) override;
    void stepTaken() override {}
    void runEnded(const RunResult& result) override;

private:
    int count(ScoreCause cause) const { return counts_[static_cast<std::size_t>(cause)]; }

    Output& output_;
    std::uint32_t seed_;
    int orders_ = 0;
    std::array<int, static_cast<std::size_t>(ScoreCause::bonus) + 1> counts_{}; // by cause
};

} // namespace ventrel
