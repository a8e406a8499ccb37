#include "platform/desktop/window_life.h"

#include <algorithm>

#include "platform/desktop/activation.h"
#include "platform/desktop/painting.h"
#include "platform/desktop/window_tree.h"

namespace ventrel {

namespace {

/// No side is negative.
Rect proper(const Rect& bounds) {
    return {bounds.left, bounds.top, std::max(bounds.left, bounds.right),
            std::max(bounds.top, bounds.bottom)};
}

void appear(const WindowPtr& window) {
    DesktopState& state = *window->desktop;
    noteLayoutChange(state);
    markAllInvalid(*window, window->area());
    if (window->parent == nullptr) {
        state.damage.add(window->bounds);
        activateTopLevel(state, window);
    }
}

void disappear(const WindowPtr& window) {
    DesktopState& state = *window->desktop;
    noteLayoutChange(state);
    markUncovered(state, *window, window->bounds);
    WindowRecord* owner = window->owner;
    releaseHolds(state, owner == nullptr ? nullptr : owner->shared_from_this());
}

void collectInside(const WindowPtr& window, std::vector<WindowPtr>& found) {
    found.push_back(window);
    for (const WindowPtr& child : window->children) {
        collectInside(child, found);
    }
}

/// The window with all inside it, then the top-levels it owns with all inside them.
std::vector<WindowPtr> collectDoomed(DesktopState& state, const WindowPtr& window) {
    std::vector<WindowPtr> doomed;
    collectInside(window, doomed);
    for (const WindowPtr& topLevel : state.topLevels) {
        if (isOwnedBy(*topLevel, *window)) {
            collectInside(topLevel, doomed);
        }
    }
    return doomed;
}

void takeOut(DesktopState& state, const WindowPtr& window) {
    if (window->visible) {
        markUncovered(state, *window, window->bounds);
    }
    std::erase(siblingsOf(state, *window), window);
    stopTimersOf(state.timers, *window);
    window->desktop = nullptr;
    window->parent = nullptr;
    window->owner = nullptr;
    window->children.clear();
}

void tellDestroyed(const WindowPtr& window) {
    // What its handlers hold on to is let go of when the last one has run.
    const std::shared_ptr<const WindowHandlers> handlers = std::move(window->handlers);
    if (handlers->destroyed) {
        handlers->destroyed();
    }
}

} // namespace

Window createWindow(DesktopState& state, WindowSetup setup, const WindowPtr& parent, const WindowPtr& owner) {
    const auto window = std::make_shared<WindowRecord>();
    window->desktop = &state;
    window->id = setup.id;
    window->bounds = proper(setup.bounds);
    window->visible = setup.visible;
    window->enabled = setup.enabled;
    window->alwaysOnTop = setup.alwaysOnTop;
    window->activates = setup.activates;
    window->background = setup.background;
    window->handlers = std::make_shared<const WindowHandlers>(std::move(setup.handlers));
    window->parent = parent.get();
    window->owner = owner.get();
    if (window->parent == nullptr) {
        window->surface = std::make_shared<Surface>(window->bounds.size());
    }
    siblingsOf(state, *window).push_back(window);
    if (window->visible) {
        appear(window);
    }
    return window->handle();
}

void destroyWindow(const WindowPtr& window) {
    DesktopState& state = *window->desktop;
    const WindowPtr owner = window->owner == nullptr ? nullptr : window->owner->shared_from_this();
    const std::vector<WindowPtr> doomed = collectDoomed(state, window);
    noteLayoutChange(state);
    std::for_each(doomed.rbegin(), doomed.rend(), [&](const WindowPtr& each) { takeOut(state, each); });
    releaseHolds(state, owner);
    std::for_each(doomed.begin(), doomed.end(), tellDestroyed);
}

void abandon(WindowRecord& window) {
    window.desktop = nullptr;
    for (const WindowPtr& child : window.children) {
        abandon(*child);
    }
}

void showWindow(const WindowPtr& window, bool visible) {
    if (window->visible != visible) {
        window->visible = visible;
        visible ? appear(window) : disappear(window);
    } else if (visible && window->parent == nullptr) {
        activateTopLevel(*window->desktop, window);
    }
}

void enableWindow(const WindowPtr& window, bool enabled) {
    if (window->enabled == enabled) {
        return;
    }
    window->enabled = enabled;
    DesktopState& state = *window->desktop;
    state.pointer.isStale = true;
    releaseHolds(state, nullptr);
}

void setWindowBounds(const WindowPtr& window, const Rect& bounds) {
    const Rect before = window->bounds;
    const Rect after = proper(bounds);
    if (before == after) {
        return;
    }
    DesktopState& state = *window->desktop;
    const bool isResized = before.size() != after.size();
    window->bounds = after;
    noteLayoutChange(state);
    if (window->visible) {
        markUncovered(state, *window, before);
        markUncovered(state, *window, after);
    }
    if (window->parent == nullptr && isResized) {
        window->surface = std::make_shared<Surface>(after.size());
    }
    if (window->parent != nullptr || isResized) {
        markAllInvalid(*window, window->area());
    }
    if (isResized) {
        callHandler(window, &WindowHandlers::resized, after.size());
    }
}

} // namespace ventrel
