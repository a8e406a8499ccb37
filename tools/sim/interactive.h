// A shift played from outside: a line of JSON for every step, and the orders of another program in answer.

#pragma once

#include <istream>
#include <string>

#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

/// Tells what a controller may know: the flights on the scope and announced, what the ticker and the score
/// said since the last step, and which orders were refused.
class InteractiveWriter final : public Recorder {
public:
    InteractiveWriter(Output& output, const Game& game) : Recorder{game}, output_{output} {}

    void refused(std::string_view order, std::string_view reason);

    void reported(const Report& report) override;
    void scoreChanged(const ScoreChange& change) override;

    void shiftSetUp() override;
    void stepTaken() override;
    void runEnded(const RunResult& result) override;

private:
    /// One more event of the coming line.
    Output& event(std::string_view type);
    void writeEvents();
    void endLine();

    Output& output_;
    Output events_;
};

/// Reads orders line by line and sends them, up to an empty line; from the input's end on nothing more.
void takeOrders(std::istream& input, Game& game, InteractiveWriter& writer);

} // namespace ventrel
