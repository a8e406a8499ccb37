// The note of a lesson: a sheet of paper pinned to the console with a text and two buttons, and a quiet frame
// around what it speaks of. Its buttons are commands of the main window.

#pragma once

#include <array>
#include <string>

#include "lessons/lesson_follower.h"
#include "platform/widgets/button.h"

namespace ventrel {

struct Shell;

/// What is written on it besides the note itself.
struct NoteHead {
    std::string title;
    std::size_t steps = 0;      ///< of the whole lesson
    bool hasNextLesson = false; ///< after it
};

class LessonNoteWindow {
public:
    /// Pins an empty note to the console, hidden.
    LessonNoteWindow(Shell& shell, NoteHead head);
    LessonNoteWindow(const LessonNoteWindow&) = delete;
    LessonNoteWindow& operator=(const LessonNoteWindow&) = delete;
    /// Takes it off.
    ~LessonNoteWindow();

    /// Shows the note, in a place where it hides nothing of what it speaks of. Nothing moves or is painted
    /// that stays as it was.
    void show(const LessonNote& note);

    /// Pixels that a note with such a text takes from its upper to its lower edge.
    int heightFor(const std::string& text) const;

private:
    void createFrame();
    void moveFrame(const std::optional<Rect>& area, bool isOpen);
    void fitButtons();
    void paint(Canvas& canvas) const;

    Shell& shell_;
    NoteHead head_;
    LessonNote note_;
    Window sheet_;
    Button leave_;
    Button go_;
    std::array<Window, 8> frame_; ///< its lines: a half of each side, from every corner
    std::optional<Rect> framed_;
};

} // namespace ventrel
