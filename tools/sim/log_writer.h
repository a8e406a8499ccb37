// The log: a shift as a person would tell it, one line an event, with the time as minutes and seconds.

#pragma once

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class LogWriter final : public Recorder {
public:
    explicit LogWriter(Output& output) : output_{output} {}

    void messagePosted(std::string_view text, MessageClass messageClass) override;
    void pilotSpoke(const RadioCall& call) override;
    void lampChanged(LampLevel lit) override;
    void scoreChanged(int delta, int score) override;

    void shiftSetUp(const GameState& game) override;
    void orderGiven(const GameState& game, FlightIndex flight, const PanelOrder& order) override;
    void stepTaken(const GameState& game) override;
    void runEnded(const GameState& game, const RunResult& result) override;

private:
    void line(std::string_view kind, std::string_view text);

    Output& output_;
};

} // namespace ventrel
