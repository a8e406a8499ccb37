#include "platform/desktop/activation.h"

#include <algorithm>

#include "platform/desktop/painting.h"
#include "platform/desktop/window_tree.h"

namespace ventrel {

namespace {

bool canBeActive(const DesktopState& state, const WindowRecord& topLevel) {
    return topLevel.visible && topLevel.enabled && topLevel.activates && !isLocked(state, topLevel);
}

WindowPtr nextActive(const DesktopState& state, const WindowPtr& heir) {
    if (heir != nullptr && canBeActive(state, *heir)) {
        return heir;
    }
    const auto found = std::find_if(state.topLevels.rbegin(), state.topLevels.rend(),
                                    [&](const WindowPtr& topLevel) { return canBeActive(state, *topLevel); });
    return found == state.topLevels.rend() ? nullptr : *found;
}

/// The window that should know itself active: none while the program is not in front.
WindowPtr wantedActive(const DesktopState& state) {
    const ActivityState& activity = state.activity;
    return activity.programIsInFront && !activity.programIsMinimised ? activeTopLevel(state) : nullptr;
}

WindowPtr wantedFocus(const DesktopState& state) {
    return wantedActive(state) == nullptr ? nullptr : focusTarget(state);
}

void tellFocusLost(DesktopState& state) {
    const WindowPtr told = alive(state.activity.toldFocus);
    if (told != nullptr && told != wantedFocus(state)) {
        state.activity.toldFocus.reset();
        callHandler(told, &WindowHandlers::focus, false);
    }
}

void tellInactive(DesktopState& state) {
    const WindowPtr told = alive(state.activity.toldActive);
    if (told != nullptr && told != wantedActive(state)) {
        state.activity.toldActive.reset();
        callHandler(told, &WindowHandlers::activate, Activation{false, state.activity.programIsMinimised});
    }
}

void tellActive(DesktopState& state) {
    const WindowPtr wanted = wantedActive(state);
    if (wanted != nullptr && alive(state.activity.toldActive) == nullptr) {
        state.activity.toldActive = wanted;
        callHandler(wanted, &WindowHandlers::activate, Activation{true, false});
    }
}

void tellFocusGained(DesktopState& state) {
    const WindowPtr wanted = wantedFocus(state);
    if (wanted != nullptr && alive(state.activity.toldFocus) == nullptr) {
        state.activity.toldFocus = wanted;
        callHandler(wanted, &WindowHandlers::focus, true);
    }
}

/// Whether nothing lies over it but what it owns.
bool isUppermost(const DesktopState& state, const WindowPtr& topLevel) {
    const auto place = std::ranges::find(state.topLevels, topLevel);
    return std::all_of(place, state.topLevels.end(), [&](const WindowPtr& above) {
        return above == topLevel || isOwnedBy(*above, *topLevel);
    });
}

/// A focus that was hidden or disabled does not come back by itself.
void forgetUnfitFocus(WindowRecord& topLevel) {
    const WindowPtr focus = alive(topLevel.focus);
    for (const WindowRecord* window = focus.get(); window != nullptr && window != &topLevel;
         window = window->parent) {
        if (!window->visible || !window->enabled) {
            topLevel.focus.reset();
        }
    }
}

} // namespace

WindowPtr runningModal(const DesktopState& state) {
    const auto& modals = state.activity.modals;
    const auto found = std::find_if(modals.rbegin(), modals.rend(), [](const WindowPtr& modal) {
        return modal->desktop != nullptr && modal->visible;
    });
    return found == modals.rend() ? nullptr : *found;
}

bool isLocked(const DesktopState& state, const WindowRecord& topLevel) {
    const WindowPtr modal = runningModal(state);
    return modal != nullptr && modal.get() != &topLevel && !isOwnedBy(topLevel, *modal);
}

WindowPtr activeTopLevel(const DesktopState& state) {
    return alive(state.activity.active);
}

WindowPtr focusTarget(const DesktopState& state) {
    const WindowPtr active = activeTopLevel(state);
    if (active == nullptr) {
        return nullptr;
    }
    const WindowPtr focus = alive(active->focus);
    return focus != nullptr ? focus : active;
}

void settle(DesktopState& state) {
    tellFocusLost(state);
    tellInactive(state);
    tellActive(state);
    tellFocusGained(state);
}

void raiseInSight(const WindowPtr& window) {
    DesktopState& state = *window->desktop;
    raiseWindow(state, *window);
    noteLayoutChange(state);
    if (window->parent != nullptr) {
        markAllInvalid(*window, window->area());
        return;
    }
    if (isLocked(state, *window)) {
        raiseWindow(state, *runningModal(state));
    }
    state.damage.addAll();
}

void activateTopLevel(DesktopState& state, const WindowPtr& topLevel) {
    if (!isUppermost(state, topLevel)) {
        raiseInSight(topLevel);
    }
    if (!canBeActive(state, *topLevel)) {
        return;
    }
    const WindowPtr captured = alive(state.pointer.captured);
    if (captured != nullptr && activeTopLevel(state) != topLevel && !isWithin(*captured, *topLevel)) {
        loseCapture(state);
    }
    state.activity.active = topLevel;
    settle(state);
}

void releaseHolds(DesktopState& state, const WindowPtr& heir) {
    for (const WindowPtr& topLevel : state.topLevels) {
        forgetUnfitFocus(*topLevel);
    }
    const WindowPtr active = activeTopLevel(state);
    if (active == nullptr || !canBeActive(state, *active)) {
        const WindowPtr next = nextActive(state, heir);
        state.activity.active = next;
        if (next != nullptr && state.topLevels.back() != next) {
            raiseInSight(next);
        }
    }
    const WindowPtr captured = state.pointer.captured.lock();
    if (captured != nullptr &&
        (captured->desktop == nullptr || !isShown(*captured) || !isUsable(*captured))) {
        loseCapture(state);
    }
    settle(state);
}

void setFocus(const WindowPtr& window) {
    if (!isShown(*window) || !isUsable(*window)) {
        return;
    }
    DesktopState& state = *window->desktop;
    const WindowPtr topLevel = topLevelOf(*window).shared_from_this();
    topLevel->focus = window;
    if (activeTopLevel(state) == topLevel) {
        settle(state);
    } else {
        activateTopLevel(state, topLevel);
    }
}

void captureMouse(const WindowPtr& window) {
    DesktopState& state = *window->desktop;
    if (!isShown(*window) || !isUsable(*window) || alive(state.pointer.captured) == window) {
        return;
    }
    const WindowPtr previous = alive(state.pointer.captured);
    state.pointer.captured = window;
    if (previous == nullptr) {
        state.backend.captureMouse(true);
    } else {
        callHandler(previous, &WindowHandlers::captureLost);
    }
}

void dropCapture(DesktopState& state) {
    state.pointer.captured.reset();
    state.pointer.isStale = true;
    state.backend.captureMouse(false);
}

void loseCapture(DesktopState& state) {
    const WindowPtr captured = alive(state.pointer.captured);
    dropCapture(state);
    if (captured != nullptr) {
        callHandler(captured, &WindowHandlers::captureLost);
    }
}

void programCameInFront(DesktopState& state, bool inFront) {
    state.activity.programIsInFront = inFront;
    if (!inFront && alive(state.pointer.captured) != nullptr) {
        loseCapture(state);
    }
    settle(state);
}

void programWasMinimised(DesktopState& state, bool minimised) {
    if (state.activity.programIsMinimised == minimised) {
        return;
    }
    state.activity.programIsMinimised = minimised;
    if (const WindowPtr main = alive(state.mainWindow)) {
        callHandler(main, &WindowHandlers::minimise, minimised);
    }
    settle(state);
}

} // namespace ventrel
