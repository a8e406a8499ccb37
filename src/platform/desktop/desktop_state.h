// Everything a desktop owns. Private to this room: one record, and one file of functions for each of its
// concerns (window_tree, painting, screen_picture, activation, window_life, input_routing, timers, loop).

#pragma once

#include <deque>

#include "platform/desktop/desktop.h"
#include "platform/desktop/standard_cursors.h"
#include "platform/desktop/timers.h"
#include "platform/desktop/window_record.h"

namespace ventrel {

/// Who works in what (activation.h).
struct ActivityState {
    WindowWeak active; ///< the top-level that a person works in, whenever the program is in front
    WindowWeak toldActive;
    WindowWeak toldFocus;          ///< the windows that were last told so; they settle after each change
    std::vector<WindowPtr> modals; ///< the running dialogs, the innermost last
    bool programIsInFront = true;  ///< as the machine's desktop says
    bool programIsMinimised = false;
};

/// The mouse (activation.h for the capture, input_routing.h for the rest).
struct PointerState {
    WindowWeak captured;
    WindowWeak menu;    ///< gets the keys too, for as long as it is also captured
    WindowWeak pressed; ///< the window of the latest press
    std::optional<Point> position;
    const CursorImage* shown = nullptr;
    bool isStale = false; ///< something changed under it: its window is to be asked anew
};

struct PostedMessage {
    WindowWeak window;
    std::function<void()> run;
};

/// What waits to be handled (loop.h).
struct QueueState {
    std::deque<PostedMessage> posted;
    std::deque<InputEvent> input; ///< taken from the machine, or put back, but not handled
    bool textIsSpent = false;     ///< the latest key press was handled: its text is not to be delivered
};

struct DesktopState {
    DesktopState(Desktop& ownDesktop, Backend& ownBackend, Size size)
        : desktop(ownDesktop), backend(ownBackend), picture(size), damage(size) {}

    Desktop& desktop;
    Backend& backend;
    StandardCursors cursors;

    std::vector<WindowPtr> topLevels; ///< the uppermost last
    WindowWeak mainWindow;
    std::uint64_t layout = 1; ///< counts the changes of what is where

    Bitmap picture;            ///< all top-levels laid together
    Damage damage;             ///< what of it must be laid anew
    bool screenIsStale = true; ///< it does not show the picture as it was: all is to be sent
    bool paintIsNeeded = false;
    Millis nextSending = 0; ///< the earliest: the screen still shows what was sent before
    bool machineWindowIsShown = false;

    ActivityState activity;
    PointerState pointer;
    QueueState queue;
    Timers timers;

    Desktop::Idle idle;
    bool idleIsRunning = false;
    bool isQuitting = false;
};

} // namespace ventrel
