// A player without hands and eyes who does what a lesson asks for, and makes the mistakes that it answers.

#pragma once

#include "lessons/lesson_follower.h"
#include "lessons/lesson_shift.h"

namespace ventrel {

class Pupil {
public:
    /// Plays a lesson of the program's folder, by its place from 0, in a window of that width.
    explicit Pupil(std::size_t lesson, int windowWidth = 800, int voiceSets = 0);

    Game game;
    LessonFollower follower;

    const Lesson& lesson() const { return follower.lesson(); }
    const LessonNote& look();

    /// Does what the lesson asks for until that step is shown, from 0, or nothing comes of it.
    void playTo(std::size_t step);
    /// Makes it come true, by orders and settings where a player can, else behind the game's back.
    void bringAbout(const FactTerms& terms);

private:
    bool isTrue(const FactTerm& term) const;
    void fulfil(const FactTerm& term);
    void set(const FactTerm& term);
    void spoil(const FactTerm& term);
    void befall(const FactTerm& term);
    void select(FlightIndex flight);
    void awaitAndSelect(FlightIndex flight);
    void send(FlightIndex flight);
    void takeStep();

    std::optional<FlightIndex> panelFlight_;
    PanelOrder pending_;
    bool paused_ = false;
};

} // namespace ventrel
