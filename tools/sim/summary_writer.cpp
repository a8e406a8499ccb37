#include "tools/sim/summary_writer.h"

#include <string>

#include "tools/sim/trace_text.h"

namespace ventrel {

void SummaryWriter::scoreChanged(const ScoreChange& change) {
    ++counts_[static_cast<std::size_t>(change.cause)];
}

void SummaryWriter::orderExecuted(FlightIndex, OrderResult) {
    ++orders_;
}

void SummaryWriter::runEnded(const RunResult& result) {
    output_ << R"({"seed":)" << std::to_string(seed_) << R"(,"result":)" << resultNumber(result)
            << R"(,"clock":)" << game().clock.count() << R"(,"score":)" << game().score << R"(,"possible":)"
            << game().possibleScore << R"(,"landed":)" << count(ScoreCause::landing) << R"(,"left":)"
            << count(ScoreCause::exit) << R"(,"missed":)"
            << count(ScoreCause::missedApproach) + count(ScoreCause::missedExit) << R"(,"lost":)"
            << count(ScoreCause::lost) << R"(,"nearMisses":)" << count(ScoreCause::nearMiss)
            << R"(,"complaints":)" << count(ScoreCause::keptWaiting) << R"(,"orders":)" << orders_ << '}';
    output_.endLine();
}

} // namespace ventrel
