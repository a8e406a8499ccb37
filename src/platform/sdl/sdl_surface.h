// What the window shows: the picture at its size, and black beside it. Private to this room.

#pragma once

#include <SDL.h>

#include <functional>
#include <span>
#include <vector>

#include "platform/sdl/scaled_picture.h"
#include "platform/sdl/sdl_system.h"

namespace ventrel {

/// Draws changed parts of the picture on the window's surface and sends them. One object serves one window.
class SdlSurface {
public:
    /// Where the picture lies in a window of that size.
    using PlaceInWindow = std::function<Rect(Size)>;

    void present(SDL_Window& window, const Bitmap& picture, std::span<const Rect> changed,
                 const PlaceInWindow& placeIn);

    /// With the next picture the whole window is to be sent, also beside the picture.
    void sendAll() { sendsAll_ = true; }

private:
    SDL_Surface* surfaceToDrawOn(SDL_Surface& screen);
    std::vector<SDL_Rect> drawParts(const SDL_Surface& target, const Rect& place, const Bitmap& picture,
                                    std::span<const Rect> changed);

    PictureScaler scaler_;
    SurfacePointer ours_; ///< only for a screen with other pixels than ours
    bool sendsAll_ = true;
};

} // namespace ventrel
