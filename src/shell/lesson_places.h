// Where a lesson points on the console, and where its note can hang so that it hides nothing that counts.

#pragma once

#include <optional>

#include "lessons/lesson.h"
#include "shell/shell.h"

namespace ventrel {

/// The area of the main window that the player shall look at; none where nothing of it is to be seen.
std::optional<Rect> lessonSpotArea(const Shell& shell, const LessonSpot& spot);

/// Whether the frame around it is open between its corners, where something of the console is in its way.
bool hasOpenFrame(const LessonSpot& spot);

/// The place of a note of that height: over the strips that nobody uses, else in a corner of the scope
/// without an aircraft. It never covers `shown`.
Rect lessonNotePlace(const Shell& shell, int height, const std::optional<Rect>& shown);

/// Pixels of a note from its left to its right edge.
inline constexpr int lessonNoteWidth = 196;

} // namespace ventrel
