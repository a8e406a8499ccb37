// Where a person gets hold of the borderless window: its drag strip, and its edges. Private to this room.

#pragma once

#include <SDL.h>

#include <optional>

#include "platform/devices/backend.h"

namespace ventrel {

inline constexpr int resizeEdge = 4; ///< pixels of the window by which a person resizes it

struct WindowGrips {
    Size window;
    Rect area; ///< of the window, in which the picture is shown
    Size picture;
    std::optional<DragStrip> strip;

    /// What a press at that place of the window takes hold of.
    SDL_HitTestResult at(Point place) const;

private:
    bool isAtStrip(int row) const;
};

} // namespace ventrel
