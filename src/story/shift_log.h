// Writes the story of a shift down while it is played.
//
// A receiver of the simulation's events. It is told of its game's beginning and of the lines that others than
// the simulation put on the ticker; all else it hears by itself. It must hear of a line before the ticker's
// queue does, and so knows whether that has room for it.

#pragma once

#include "sim/simulation_events.h"
#include "story/shift_story.h"

namespace ventrel {

class ShiftLog final : public SimulationEvents {
public:
    /// Of the shifts that are played in this record, which outlives the log.
    explicit ShiftLog(const Game& game) : game_{game} {}

    const ShiftStory& story() const { return story_; }
    /// Another number whenever entries that stood there have changed or gone. With the same one there are
    /// only more of them.
    int edition() const { return edition_; }

    /// The game has just been set up, from a generator of that state. The story before it is forgotten.
    void shiftBegun(Skill skill, std::uint32_t seed);
    /// A line that is not the simulation's own is about to be put on the ticker.
    void linePosted(std::string_view words, MessageClass messageClass);
    /// What still waits for the ticker is about to be thrown away.
    void tickerCleared();
    /// The player has given the shift up; nothing when it was over.
    void shiftGivenUp();
    /// No more is seen of a replay, whose shift went on; nothing when it was over.
    void replayLeft();

    void reported(const Report& report) override;
    void pilotSpoke(const RadioCall& call) override;
    void scoreChanged(const ScoreChange& change) override;
    void orderSent(FlightIndex flight, const PanelOrder& order) override;
    void flightActivated(FlightIndex flight) override;
    void shiftEnded(ShiftResult result) override;

private:
    LogEntry& add(LogKind kind, std::optional<FlightIndex> flight, std::string words);
    void addLine(std::optional<FlightIndex> flight, std::string words, MessageClass messageClass);
    void endEarly(ShiftEnd end, std::string_view words);
    void noteEnd(FlightIndex flight, FlightEnd end);
    /// Whether it belongs to the shift of which the log was told: of another game only the lines are kept.
    bool isKnown(FlightIndex flight) const { return flight.place() < story_.flights.size(); }

    const Game& game_;
    ShiftStory story_;
    int edition_ = 0;
};

} // namespace ventrel
