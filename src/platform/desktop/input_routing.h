// Where keys, text, the mouse and the machine's window events go. Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

/// Hands one event to the window it is meant for. `accelerators`: keys may stand for commands.
void routeInput(DesktopState& state, const InputEvent& event, bool accelerators);

/// Asks for the pointer anew when what lies under it has changed.
void refreshPointer(DesktopState& state);

void showCursor(DesktopState& state, Cursor cursor);
Point pointerPosition(const DesktopState& state);

/// Calls the command handler of the window, or of its nearest ancestor that has one.
void sendCommand(const WindowPtr& window, const CommandInput& command);

} // namespace ventrel
