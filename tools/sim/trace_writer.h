// The trace: one JSON object a line, the same bytes for the same shift on every machine.

#pragma once

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class TraceWriter final : public Recorder {
public:
    explicit TraceWriter(Output& output) : output_{output} {}

    void messagePosted(std::string_view text, MessageClass messageClass) override;
    void pilotSpoke(const RadioCall& call) override;
    void lampChanged(LampLevel lit) override;
    void scoreChanged(int delta, int score) override;

    void shiftSetUp(const GameState& game) override;
    void orderExecuted(FlightIndex flight, OrderResult result) override;
    void stepTaken(const GameState& game) override;
    void runEnded(const GameState& game, const RunResult& result) override;

private:
    /// The beginning of every line but the first.
    Output& begin(std::string_view type);
    void end();

    Output& output_;
};

} // namespace ventrel
