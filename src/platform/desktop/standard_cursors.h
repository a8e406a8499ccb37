// The desktop's own pointers, drawn as text. Private to this room.

#pragma once

#include "platform/desktop/cursor.h"

namespace ventrel {

struct StandardCursors {
    StandardCursors();

    /// Null for the hidden one.
    const CursorImage* image(StandardCursor cursor) const;

    CursorImage arrow;
    CursorImage beam;
    CursorImage wait;
};

} // namespace ventrel
