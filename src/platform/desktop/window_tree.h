// Where windows lie: kinship, coordinates, order from bottom to top, and which one is at a point.
// Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

WindowRecord& topLevelOf(WindowRecord& window);
bool isWithin(const WindowRecord& window, const WindowRecord& ancestor);
/// Whether the top-level was opened, directly or through others, for `owner`.
bool isOwnedBy(const WindowRecord& topLevel, const WindowRecord& owner);

/// Whether it and all its ancestors are shown.
bool isShown(const WindowRecord& window);
/// Whether it and all its ancestors are enabled.
bool isUsable(const WindowRecord& window);

/// The window's corner in the picture of its top-level.
Point cornerInPicture(const WindowRecord& window);
Point cornerOnScreen(const WindowRecord& window);

/// The list that the window stands in: its parent's children, or the top-levels.
std::vector<WindowPtr>& siblingsOf(DesktopState& state, const WindowRecord& window);

/// Above its siblings; a top-level with all it owns, below those always on top unless it is one itself.
/// Running dialogs count as always on top: nothing may hide what everything waits for.
void raiseWindow(DesktopState& state, WindowRecord& window);

/// The innermost shown window at that point of the screen; null outside all.
WindowPtr windowAt(DesktopState& state, Point screen);

/// Calls `visit` for the window and all inside it that is shown, parents first, the uppermost last.
template <typename Visit>
void visitShown(const WindowPtr& window, const Visit& visit) {
    if (!window->visible) {
        return;
    }
    visit(window);
    for (const WindowPtr& child : window->children) {
        visitShown(child, visit);
    }
}

} // namespace ventrel
