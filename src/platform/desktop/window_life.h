// How windows come, change and go. Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

/// `parent` and `owner` are those of the setup, or null.
Window createWindow(DesktopState& state, WindowSetup setup, const WindowPtr& parent, const WindowPtr& owner);
void destroyWindow(const WindowPtr& window);
/// Declares the window and all inside it gone, without further ado, because the desktop goes.
void abandon(WindowRecord& window);

void showWindow(const WindowPtr& window, bool visible);
void enableWindow(const WindowPtr& window, bool enabled);
void setWindowBounds(const WindowPtr& window, const Rect& bounds);

} // namespace ventrel
