// The mouse's pointers, as large as the picture is shown. Private to this room.

#pragma once

#include <map>

#include "platform/sdl/sdl_system.h"

namespace ventrel {

/// Makes each pointer at its first use and keeps it.
class SdlPointers {
public:
    /// The picture stays the caller's while it is shown; null hides the pointer.
    void set(const CursorImage* image);

    /// By which whole number pointers are enlarged from now on.
    void enlargeBy(int multiple);

private:
    SDL_Cursor* pointerFor(const CursorImage& image);

    int multiple_ = 1;
    std::map<const CursorImage*, CursorPointer> made_;
    const CursorImage* shown_ = nullptr;
};

} // namespace ventrel
