// What of a window can be seen, which of it must be painted, and the painting. Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

/// Something moved, came or went: what is visible must be found anew, also under the pointer.
void noteLayoutChange(DesktopState& state);

/// What the window may draw on, in the picture of its top-level. Empty while it is hidden.
const Region& drawableRegion(WindowRecord& window);

/// Marks the part of `area` (the window's coordinates) that is visible now to be painted.
void markInvalid(WindowRecord& window, const Rect& area);
/// Marks it in the window and in all inside it.
void markAllInvalid(WindowRecord& window, const Rect& area);
/// Marks what a child of that place uncovered or covers no longer; for a top-level that the screen must be
/// laid anew there. `bounds` are those of the window, before or after the change.
void markUncovered(DesktopState& state, const WindowRecord& window, const Rect& bounds);

/// Paints what is marked in the window, and in all that is inside it.
void paintMarkedInside(const WindowPtr& window);
/// Paints all that is marked on the desktop.
void paintMarked(DesktopState& state);

/// A canvas on what the window shows; without pixels to draw on when it is gone or hidden.
Canvas canvasOf(const WindowPtr& window);

} // namespace ventrel
