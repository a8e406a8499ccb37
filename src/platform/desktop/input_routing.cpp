#include "platform/desktop/input_routing.h"

#include <algorithm>

#include "platform/desktop/activation.h"
#include "platform/desktop/screen_picture.h"
#include "platform/desktop/window_tree.h"

namespace ventrel {

namespace {

WindowPtr parentOf(const WindowPtr& window) {
    WindowRecord* parent = window->desktop == nullptr ? nullptr : window->parent;
    return parent == nullptr ? nullptr : parent->shared_from_this();
}

/// Offers input to the window, then to its ancestors, until one handles it.
template <typename Handler, typename... Arguments>
bool offer(WindowPtr window, Handler handler, const Arguments&... arguments) {
    while (window != nullptr) {
        // Taken before the call: the window may be gone after it.
        const WindowPtr parent = parentOf(window);
        if (callHandler(window, handler, arguments...)) {
            return true;
        }
        window = parent;
    }
    return false;
}

bool takesNoInput(const DesktopState& state, const WindowPtr& window) {
    WindowRecord& topLevel = topLevelOf(*window);
    return !topLevel.enabled || isLocked(state, topLevel);
}

// Keys and text -------------------------------------------------------------------------------------------

/// The menu while one is open; else the focus, unless a dialog locks the active window.
WindowPtr keyTarget(const DesktopState& state) {
    WindowPtr menu = alive(state.pointer.menu);
    if (menu != nullptr && menu == alive(state.pointer.captured)) {
        return menu;
    }
    const WindowPtr active = activeTopLevel(state);
    return active == nullptr || isLocked(state, *active) ? nullptr : focusTarget(state);
}

bool isMeant(const Accelerator& accelerator, const KeyEvent& key) {
    const Key pressed = accelerator.by == KeyBy::place ? key.place : key.key;
    return accelerator.key == pressed && accelerator.modifiers == key.modifiers;
}

bool runAccelerator(const WindowPtr& target, const KeyEvent& key) {
    WindowRecord& topLevel = topLevelOf(*target);
    const auto found = std::ranges::find_if(topLevel.accelerators,
                                            [&](const Accelerator& each) { return isMeant(each, key); });
    if (!key.down || found == topLevel.accelerators.end()) {
        return false;
    }
    sendCommand(topLevel.shared_from_this(), CommandInput{found->command, 0, {}});
    return true;
}

/// A window that never has the keyboard hears what is pressed over it.
bool offerToHovered(DesktopState& state, const KeyEvent& key) {
    const PointerState& pointer = state.pointer;
    const bool isFree = pointer.position && alive(pointer.captured) == nullptr;
    const WindowPtr hovered = isFree ? windowAt(state, *pointer.position) : nullptr;
    return hovered != nullptr && !takesNoInput(state, hovered) &&
           callHandler(topLevelOf(*hovered).shared_from_this(), &WindowHandlers::hoverKey, key);
}

void routeKey(DesktopState& state, const KeyEvent& key, bool accelerators) {
    if (offerToHovered(state, key)) {
        state.queue.textIsSpent = key.down;
        return;
    }
    const WindowPtr target = keyTarget(state);
    // Spent while it is being handled, too: a dialog that it opens must not receive its text.
    state.queue.textIsSpent = key.down;
    const bool isHandled = target != nullptr && ((accelerators && runAccelerator(target, key)) ||
                                                 offer(target, &WindowHandlers::key, key));
    state.queue.textIsSpent = key.down && isHandled;
}

void routeText(DesktopState& state, const TextEvent& text) {
    if (!state.queue.textIsSpent) {
        offer(keyTarget(state), &WindowHandlers::text, std::string_view(text.text));
    }
}

// The mouse -----------------------------------------------------------------------------------------------

/// The window that mouse input at that point concerns: the captor, else the innermost enabled one.
WindowPtr mouseTarget(DesktopState& state, Point screen) {
    if (const WindowPtr captured = alive(state.pointer.captured)) {
        return captured;
    }
    WindowPtr window = windowAt(state, screen);
    while (window != nullptr && window->parent != nullptr && !isUsable(*window)) {
        window = window->parent->shared_from_this();
    }
    return window;
}

void refusePress(DesktopState& state) {
    state.backend.beep(MessageIcon::none);
    if (const WindowPtr modal = runningModal(state)) {
        activateTopLevel(state, modal);
        callHandler(modal, &WindowHandlers::lockedOut);
    }
}

MouseInput inputFor(const WindowRecord& window, const MouseEvent& event) {
    return {event.position - cornerOnScreen(window), event.position, event.button, event.doubleClick,
            event.modifiers};
}

void routePress(DesktopState& state, const WindowPtr& target, const MouseEvent& event) {
    if (const WindowPtr topLevel = topLevelOf(*target).shared_from_this(); topLevel->activates) {
        activateTopLevel(state, topLevel);
    }
    MouseEvent press = event;
    press.doubleClick = event.doubleClick && alive(state.pointer.pressed) == target;
    state.pointer.pressed = target;
    if (target->desktop != nullptr) {
        callHandler(target, &WindowHandlers::press, inputFor(*target, press));
    }
}

std::optional<Cursor> cursorOf(const WindowPtr& window, Point screen) {
    for (WindowPtr asked = window; asked != nullptr; asked = parentOf(asked)) {
        const auto answer = callHandler(asked, &WindowHandlers::cursor, screen - cornerOnScreen(*asked));
        if (answer) {
            return answer;
        }
    }
    return std::nullopt;
}

void askForCursor(DesktopState& state, const WindowPtr& target, Point screen) {
    state.pointer.isStale = false;
    const bool isAsked = target != nullptr && !takesNoInput(state, target);
    const auto answer = isAsked ? cursorOf(target, screen) : std::nullopt;
    showCursor(state, answer.value_or(StandardCursor::arrow));
}

void routeMove(DesktopState& state, const WindowPtr& target, const MouseEvent& event) {
    if (alive(state.pointer.captured) == nullptr) {
        askForCursor(state, target, event.position);
    }
    if (target != nullptr && target->desktop != nullptr && !takesNoInput(state, target)) {
        callHandler(target, &WindowHandlers::move, inputFor(*target, event));
    }
}

void routeMouse(DesktopState& state, const MouseEvent& event) {
    state.pointer.position = event.position;
    const WindowPtr target = mouseTarget(state, event.position);
    const bool isMove = event.button == MouseButton::none && event.wheel == 0;
    if (isMove) {
        routeMove(state, target, event);
    } else if (target == nullptr) {
        return;
    } else if (takesNoInput(state, target)) {
        if (event.down) {
            refusePress(state);
        }
    } else if (event.wheel != 0) {
        offer(target, &WindowHandlers::wheel, event.wheel);
    } else if (event.down) {
        routePress(state, target, event);
    } else {
        callHandler(target, &WindowHandlers::release, inputFor(*target, event));
    }
}

// The machine's window ------------------------------------------------------------------------------------

/// A running dialog is asked alone. One that does not take the question, because it asks one itself, ends
/// with the program.
void routeClose(DesktopState& state) {
    if (const WindowPtr modal = runningModal(state); modal != nullptr && !modal->handlers->close) {
        state.desktop.quit();
        return;
    }
    WindowPtr asked = activeTopLevel(state);
    while (asked != nullptr && !asked->handlers->close) {
        asked = asked->owner == nullptr ? nullptr : asked->owner->shared_from_this();
    }
    if (asked == nullptr) {
        asked = alive(state.mainWindow);
    }
    if (asked != nullptr && asked->handlers->close) {
        callHandler(asked, &WindowHandlers::close);
    } else {
        state.desktop.quit();
    }
}

void routeWindowEvent(DesktopState& state, WindowEvent event) {
    switch (event) {
    case WindowEvent::exposed: sendEverything(state); break;
    case WindowEvent::activated: programCameInFront(state, true); break;
    case WindowEvent::deactivated: programCameInFront(state, false); break;
    case WindowEvent::minimised: programWasMinimised(state, true); break;
    case WindowEvent::restored: programWasMinimised(state, false); break;
    case WindowEvent::closeRequested: routeClose(state); break;
    case WindowEvent::endRequired: state.desktop.quit(); break;
    case WindowEvent::displayChanged: sendEverything(state); break;
    }
}

} // namespace

void routeInput(DesktopState& state, const InputEvent& event, bool accelerators) {
    if (const auto* key = std::get_if<KeyEvent>(&event)) {
        routeKey(state, *key, accelerators);
    } else if (const auto* text = std::get_if<TextEvent>(&event)) {
        routeText(state, *text);
    } else if (const auto* mouse = std::get_if<MouseEvent>(&event)) {
        routeMouse(state, *mouse);
    } else {
        routeWindowEvent(state, std::get<WindowEvent>(event));
    }
}

void refreshPointer(DesktopState& state) {
    const PointerState& pointer = state.pointer;
    if (pointer.isStale && pointer.position && alive(pointer.captured) == nullptr) {
        askForCursor(state, mouseTarget(state, *pointer.position), *pointer.position);
    }
}

void showCursor(DesktopState& state, Cursor cursor) {
    const auto* const* image = std::get_if<const CursorImage*>(&cursor);
    const CursorImage* wanted =
        image != nullptr ? *image : state.cursors.image(std::get<StandardCursor>(cursor));
    if (wanted != state.pointer.shown) {
        state.pointer.shown = wanted;
        state.backend.setCursor(wanted);
    }
}

Point pointerPosition(const DesktopState& state) {
    return state.pointer.position ? *state.pointer.position : state.backend.mousePosition();
}

void sendCommand(const WindowPtr& window, const CommandInput& command) {
    WindowPtr receiver = window;
    while (receiver != nullptr && receiver->desktop != nullptr && !receiver->handlers->command) {
        receiver = parentOf(receiver);
    }
    if (receiver != nullptr && receiver->desktop != nullptr) {
        callHandler(receiver, &WindowHandlers::command, command);
    }
}

} // namespace ventrel
