// The outcome of a shift, in one line.

#pragma once

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class ScoreWriter final : public Recorder {
public:
    ScoreWriter(Output& output, const Game& game) : Recorder{game}, output_{output} {}

    void shiftSetUp() override {}
    void stepTaken() override {}
    void runEnded(const RunResult& result) override;

private:
    Output& output_;
};

} // namespace ventrel
