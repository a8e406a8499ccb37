// How the program opens: a curtain that hangs still while a sound sets the scene, then slides down and
// uncovers the title; a piece of music; and the console.
//
// Once it has begun a click, Esc, Enter or Space ends it at any moment.

#pragma once

#include <functional>

#include "platform/desktop/desktop.h"

namespace ventrel {

struct OpeningSounds {
    std::function<bool()> playScroll;   ///< the curtain's sound; false when it does not start
    std::function<bool()> isAnyPlaying; ///< whether it still sounds
    std::function<void()> stopEffects;
    std::function<void()> playMusic; ///< the title's piece, once
    std::function<bool()> isMusicPlaying;
    std::function<void()> stopMusic;
};

/// In place of an empty one there is black.
struct OpeningPictures {
    Bitmap curtain; ///< as large as the desktop
    Bitmap title;   ///< in its middle
};

struct OpeningParts {
    Desktop& desktop;
    OpeningSounds sounds;
    std::function<OpeningPictures()> loadPictures; ///< called when the sound has begun
};

/// Shows it from beginning to end, with everything else of the program running on. When its sound does not
/// start nothing is shown. False when the program is quitting.
bool playOpening(OpeningParts parts);

} // namespace ventrel
