// The trace: one JSON object a line, the same bytes for the same shift on every machine.

#pragma once

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class TraceWriter final : public Recorder {
public:
    TraceWriter(Output& output, const Game& game) : Recorder{game}, output_{output} {}

    void reported(const Report& report) override;
    void called(const RadioCall& call) override;
    void lampChanged(LampLevel lit) override;
    void scoreChanged(const ScoreChange& change) override;

    void shiftSetUp() override;
    void orderExecuted(FlightIndex flight, OrderResult result) override;
    void stepTaken() override;
    void runEnded(const RunResult& result) override;

private:
    /// The beginning of every line but the first.
    Output& begin(std::string_view type);
    void end();

    Output& output_;
};

} // namespace ventrel
