// The log: a shift as a person would tell it, one line an event, with the time as minutes and seconds.

#pragma once

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class LogWriter final : public Recorder {
public:
    LogWriter(Output& output, const Game& game) : Recorder{game}, output_{output} {}

    void reported(const Report& report) override;
    void called(const RadioCall& call) override;
    void lampChanged(LampLevel lit) override;
    void scoreChanged(const ScoreChange& change) override;

    void shiftSetUp() override;
    void orderGiven(FlightIndex flight, const PanelOrder& order) override;
    void stepTaken() override;
    void runEnded(const RunResult& result) override;

private:
    void line(std::string_view kind, std::string_view text);

    Output& output_;
};

} // namespace ventrel
