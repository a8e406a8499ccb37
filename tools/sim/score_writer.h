// The outcome of a shift, in one line, and of a replay also what it is one of.

#pragma once

#include "replay/replay.h"
#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class ScoreWriter final : public Recorder {
public:
    /// `replay` is the header of the one that is played, which must outlive the writer; none of a new shift.
    ScoreWriter(Output& output, const Game& game, const ReplayHeader* replay)
        : Recorder{game}, output_{output}, replay_{replay} {}

    void shiftSetUp() override {}
    void stepTaken() override {}
    void runEnded(const RunResult& result) override;

private:
    Output& output_;
    const ReplayHeader* replay_;
};

} // namespace ventrel
