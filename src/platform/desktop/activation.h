// Who has the person's attention: the active top-level, the keyboard's focus, the mouse's capture, and what a
// running dialog locks. Private to this room.
//
// The functions change the state first and then let `settle` tell the windows concerned, since every handler
// may change it all again.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

/// The innermost running dialog; null when none runs.
WindowPtr runningModal(const DesktopState& state);
/// Whether a running dialog keeps input from that top-level.
bool isLocked(const DesktopState& state, const WindowRecord& topLevel);

WindowPtr activeTopLevel(const DesktopState& state);
/// Where keys go while the active window is in front: its focus, else itself.
WindowPtr focusTarget(const DesktopState& state);

/// Tells windows that became active or inactive, got or lost the focus.
void settle(DesktopState& state);

/// Raises and activates a top-level; one that cannot be active is only raised.
void activateTopLevel(DesktopState& state, const WindowPtr& topLevel);
/// Raises a window above its siblings and lets it be seen there. A locked top-level comes to lie under the
/// dialog that locks it.
void raiseInSight(const WindowPtr& window);
/// After windows were hidden, disabled or destroyed: takes away what they may not keep. `heir` (or null) is
/// the first choice for activation.
void releaseHolds(DesktopState& state, const WindowPtr& heir);

void setFocus(const WindowPtr& window);

void captureMouse(const WindowPtr& window);
/// Gives the capture up without telling the window.
void dropCapture(DesktopState& state);
/// Gives it up and tells the window.
void loseCapture(DesktopState& state);

/// The machine's desktop put the program's window in front or behind, minimised or restored it.
void programCameInFront(DesktopState& state, bool inFront);
void programWasMinimised(DesktopState& state, bool minimised);

} // namespace ventrel
