// SDL's video part, and its objects with their ends. Private to this room.

#pragma once

#include <SDL.h>

#include <memory>

#include "platform/devices/backend.h"
#include "platform/sdl/x11_care.h"

namespace ventrel {

struct WindowDeleter {
    void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
};
struct SurfaceDeleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
struct CursorDeleter {
    void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
};
using WindowPointer = std::unique_ptr<SDL_Window, WindowDeleter>;
using SurfacePointer = std::unique_ptr<SDL_Surface, SurfaceDeleter>;
using CursorPointer = std::unique_ptr<SDL_Cursor, CursorDeleter>;

/// SDL's video part, for as long as the object lives.
class VideoSystem {
public:
    VideoSystem();
    VideoSystem(const VideoSystem&) = delete;
    VideoSystem& operator=(const VideoSystem&) = delete;
    ~VideoSystem();

    /// Whether there is a screen. Without one SDL falls back to drivers that show nothing; these count only
    /// when they were asked for by name.
    bool hasScreen() const;

private:
    XErrorsAreHarmless errors_;
    bool isOpen_ = false;
};

/// From now on a hang-up ends the program as SDL lets the other two signals end it: by its quit event. A
/// hang-up that whoever started the program has shut out stays so.
void endOnHangUp();

/// The pointer's or icon's picture with its clear parts, `multiple` times as large; null without memory.
SurfacePointer surfaceOf(const CursorImage& image, int multiple);

} // namespace ventrel
