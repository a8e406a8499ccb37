// What the monkey may do next: a table of gestures, each with its weight where it stands.

#pragma once

#include "tests/soak/aim.h"

namespace ventrel {

/// Where the monkey stands: before the console, with or without a game that runs; before anything else (a
/// dialog, a box, the opening, a film); or the program's window is behind others, where no key reaches it.
enum class Standing { console, game, elsewhere, behind };
Standing standingOf(const Scene& scene);

/// Draws one gesture and writes its inputs into the timeline.
void makeGesture(Scene& scene);

/// The next try to get back to the console from elsewhere, the first being number 0.
void tryToLeave(Scene& scene, int number);

} // namespace ventrel
