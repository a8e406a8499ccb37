// Follows a player through a lesson: takes note of what happens in the shift, looks at the panel, and says
// which note is to be shown.
//
// Pure logic. It is told the events of the simulation, the player's few acts that are none, and asked now and
// then with the facts of the moment; how much time has gone by does not count.

#pragma once

#include "lessons/lesson.h"
#include "sim/game.h"

namespace ventrel {

/// The shift and what lies on the player's desk.
struct LessonFacts {
    const Game& game;
    std::optional<FlightIndex> panelFlight; ///< the flight on the control panel
    PanelOrder pending;                     ///< what the panel holds for it
    bool paused = false;
};

enum class NoteKind {
    task,   ///< what to do now
    answer, ///< to a mistake; the step goes on
    stop,   ///< the lesson cannot go on; it can be begun again
    done,
};

/// What the player reads, and where to look.
struct LessonNote {
    NoteKind kind = NoteKind::task;
    std::string text;
    LessonSpot spot{};
    bool needsButton = false; ///< it is gone on from by the note's own button
    std::size_t step = 0;     ///< from 0

    friend bool operator==(const LessonNote& a, const LessonNote& b) {
        return a.kind == b.kind && a.step == b.step && a.text == b.text;
    }
};

class LessonFollower final : public SimulationEvents {
public:
    explicit LessonFollower(Lesson lesson);

    const Lesson& lesson() const { return lesson_; }

    // What the simulation tells.
    void reported(const Report& report) override;
    void scoreChanged(const ScoreChange& change) override;
    void orderSent(FlightIndex flight, const PanelOrder& order) override;
    void shiftEnded(ShiftResult result) override;

    // What the player does besides.
    void clockSkipped() { skipped_ = true; }
    void noteRead() { read_ = true; }

    /// Moves on as far as the facts allow, and gives the note for them.
    const LessonNote& follow(const LessonFacts& facts);
    const LessonNote& note() const { return note_; }
    /// The flights that steps have brought since this was asked last (see bringFlight).
    std::vector<FlightIndex> takeBrought();

    bool holds(const Condition& condition, const LessonFacts& facts) const;
    bool holds(const FactTerm& term, const LessonFacts& facts) const;

private:
    /// What has befallen a flight.
    struct Fate {
        bool landed = false;
        bool left = false;
        bool lost = false;
        // In this step, since its latest order.
        bool ordered = false;
        bool missedHeading = false;
        bool missedAltitude = false;
        bool missedExit = false;
        bool refusedDirect = false;
        bool nearMiss = false;
        int moves = 0;
        Cell lastCell{};
    };

    bool isSo(const FactTerm& term, const LessonFacts& facts) const;
    bool isSoOfPanel(const FactTerm& term, std::size_t flight, const LessonFacts& facts) const;
    bool isSoOfFlight(const FactTerm& term, std::size_t place, const LessonFacts& facts) const;

    void countMoves(const Game& game);
    void beginStep(std::size_t step);
    const LessonAnswer* answerFor(const LessonFacts& facts) const;
    LessonSpot spotFor(const LessonFacts& facts) const;
    void show(NoteKind kind, const std::string& text, const LessonFacts& facts);

    Lesson lesson_;
    std::vector<Fate> fates_; ///< one for each flight
    LessonNote note_;
    std::size_t step_ = 0;
    std::vector<FlightIndex> brought_;
    bool skipped_ = false;
    bool read_ = false;
    std::optional<ShiftResult> result_;
    bool isOver_ = false; ///< done or stopped: the note stays
};

} // namespace ventrel
