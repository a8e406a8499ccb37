#include "platform/desktop/window_tree.h"

#include <algorithm>

namespace ventrel {

namespace {

bool isOnTop(const DesktopState& state, const WindowRecord& topLevel) {
    const auto& modals = state.activity.modals;
    const bool isModal = std::any_of(modals.begin(), modals.end(),
                                     [&](const WindowPtr& modal) { return modal.get() == &topLevel; });
    return topLevel.alwaysOnTop || isModal || (topLevel.owner != nullptr && isOnTop(state, *topLevel.owner));
}

WindowPtr innermostAt(const WindowPtr& window, Point own) {
    for (auto child = window->children.rbegin(); child != window->children.rend(); ++child) {
        if ((*child)->visible && (*child)->bounds.contains(own)) {
            return innermostAt(*child, own - (*child)->bounds.topLeft());
        }
    }
    return window;
}

} // namespace

bool mayHandle(const WindowRecord& window) {
    return window.desktop != nullptr && !window.desktop->isQuitting;
}

WindowRecord& topLevelOf(WindowRecord& window) {
    return window.parent == nullptr ? window : topLevelOf(*window.parent);
}

bool isWithin(const WindowRecord& window, const WindowRecord& ancestor) {
    return &window == &ancestor || (window.parent != nullptr && isWithin(*window.parent, ancestor));
}

bool isOwnedBy(const WindowRecord& topLevel, const WindowRecord& owner) {
    return topLevel.owner != nullptr && (topLevel.owner == &owner || isOwnedBy(*topLevel.owner, owner));
}

bool isShown(const WindowRecord& window) {
    return window.visible && (window.parent == nullptr || isShown(*window.parent));
}

bool isUsable(const WindowRecord& window) {
    return window.enabled && (window.parent == nullptr || isUsable(*window.parent));
}

Point cornerInPicture(const WindowRecord& window) {
    return window.parent == nullptr ? Point{} : cornerInPicture(*window.parent) + window.bounds.topLeft();
}

Point cornerOnScreen(const WindowRecord& window) {
    const Point inParent = window.bounds.topLeft();
    return window.parent == nullptr ? inParent : cornerOnScreen(*window.parent) + inParent;
}

std::vector<WindowPtr>& siblingsOf(DesktopState& state, const WindowRecord& window) {
    return window.parent == nullptr ? state.topLevels : window.parent->children;
}

void raiseWindow(DesktopState& state, WindowRecord& window) {
    std::vector<WindowPtr>& siblings = siblingsOf(state, window);
    std::stable_partition(siblings.begin(), siblings.end(), [&](const WindowPtr& sibling) {
        return sibling.get() != &window && !isOwnedBy(*sibling, window);
    });
    if (window.parent == nullptr) {
        std::stable_partition(siblings.begin(), siblings.end(),
                              [&](const WindowPtr& sibling) { return !isOnTop(state, *sibling); });
    }
}

WindowPtr windowAt(DesktopState& state, Point screen) {
    for (auto topLevel = state.topLevels.rbegin(); topLevel != state.topLevels.rend(); ++topLevel) {
        if ((*topLevel)->visible && (*topLevel)->bounds.contains(screen)) {
            return innermostAt(*topLevel, screen - (*topLevel)->bounds.topLeft());
        }
    }
    return nullptr;
}

} // namespace ventrel
