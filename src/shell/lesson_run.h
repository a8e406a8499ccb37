// A lesson that is being taken, from its start to the moment in which the player leaves it.
//
// The game of it is the shell's own, with the ordinary scope, panel and keys; here is what stands beside.

#pragma once

#include <filesystem>

#include "lessons/lesson_follower.h"
#include "shell/lesson_note.h"

namespace ventrel {

struct Shell;

struct LessonRun {
    LessonRun(Shell& shell, const Lesson& lesson, std::size_t place);

    std::size_t number; ///< among the lessons, from 0
    LessonFollower follower;
    LessonNoteWindow note;
    int skipsSeen = 0;         ///< of the clock
    RandomGenerator otherwise; ///< the generator of the shifts that are no lessons, which gets its turn again
    bool isRemembered = false; ///< as one that was done
};

/// The files of the program's lessons, in their order.
std::vector<std::filesystem::path> programLessons(const Shell& shell);

/// Whether the player has done the lesson of that file.
bool isLessonDone(const Shell& shell, const std::filesystem::path& file);

/// Begins a lesson, by its place from 0. What ran before has been ended. A lesson that cannot be read or
/// played is told of, and nothing begins.
void startLesson(Shell& shell, std::size_t number);

/// Looks at the facts and brings the note up to date; nothing without a lesson. To be called in every pass of
/// the loop, also while the game is paused.
void followLesson(Shell& shell);

/// The note's second button: goes on, begins again or takes the next lesson, as it says.
void goOnInLesson(Shell& shell);

/// Ends the lesson and its game, without a question.
void leaveLesson(Shell& shell);

/// The lesson's game is about to go away: its note, too.
void closeLesson(Shell& shell);

} // namespace ventrel
