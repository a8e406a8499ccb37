#include "platform/sdl/window_grips.h"

#include "platform/sdl/picture_scaling.h"

namespace ventrel {

/// Whether a row of the window lies at the drag strip's height, a little below it included.
bool WindowGrips::isAtStrip(int row) const {
    return strip && row >= area.top &&
           row < fromPicture({0, strip->area.bottom}, area, picture).y + resizeEdge;
}

SDL_HitTestResult WindowGrips::at(Point place) const {
    if (strip && strip->contains(toPicture(place, area, picture))) {
        return SDL_HITTEST_DRAGGABLE;
    }
    const bool isBottom = place.y >= window.height - resizeEdge;
    if (place.x >= window.width - resizeEdge) {
        return isBottom ? SDL_HITTEST_RESIZE_BOTTOMRIGHT : SDL_HITTEST_RESIZE_RIGHT;
    }
    // Beside the strip lies what the program puts there, up to the window's own edge.
    if (place.x < resizeEdge && !isAtStrip(place.y)) {
        return isBottom ? SDL_HITTEST_RESIZE_BOTTOMLEFT : SDL_HITTEST_RESIZE_LEFT;
    }
    return isBottom ? SDL_HITTEST_RESIZE_BOTTOM : SDL_HITTEST_NORMAL;
}

} // namespace ventrel
