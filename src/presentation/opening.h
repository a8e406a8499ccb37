// How the program opens: a curtain that hangs still while a sound sets the scene, then slides down and
// uncovers the title; a piece of music; and the console.
//
// A click, Esc, Enter or Space ends it at any moment once it has begun.

#pragma once

#include <functional>
#include <optional>

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

struct OpeningParts {
    Desktop& desktop;
    Bitmap curtain;              ///< as large as the desktop
    std::optional<Bitmap> title; ///< none: the screen behind the curtain stays black
    OpeningSounds sounds;
};

/// Shows it from beginning to end, with everything else of the program running on. Over at once when its
/// sound does not start. False when the program is quitting.
bool playOpening(OpeningParts parts);

} // namespace ventrel
