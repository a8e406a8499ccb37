#include "platform/desktop/screen_picture.h"

#include <algorithm>

namespace ventrel {

namespace {

/// What windows do not cover.
constexpr Pixel emptyDesktop = 0;

void collectDamage(DesktopState& state) {
    for (const WindowPtr& topLevel : state.topLevels) {
        Damage& damage = topLevel->surface->damage;
        if (topLevel->visible && !damage.isEmpty()) {
            for (const Rect& rect : damage.rectangles()) {
                state.damage.add(rect.movedBy(topLevel->bounds.topLeft()));
            }
        }
        damage.clear();
    }
}

void fillPart(Bitmap& screen, const Rect& part) {
    for (int y = part.top; y < part.bottom; ++y) {
        const auto row = screen.row(y).subspan(static_cast<std::size_t>(part.left),
                                               static_cast<std::size_t>(part.width()));
        std::fill(row.begin(), row.end(), emptyDesktop);
    }
}

void copyPart(Bitmap& screen, const WindowRecord& topLevel, const Rect& part) {
    const Point corner = topLevel.bounds.topLeft();
    const Bitmap& picture = topLevel.surface->picture;
    for (int y = part.top; y < part.bottom; ++y) {
        const auto from = picture.row(y - corner.y)
                              .subspan(static_cast<std::size_t>(part.left - corner.x),
                                       static_cast<std::size_t>(part.width()));
        std::copy(from.begin(), from.end(), screen.row(y).begin() + part.left);
    }
}

/// Lays the part of the screen from the uppermost top-level that covers all of it upward.
void layPart(DesktopState& state, const Rect& part) {
    const auto& all = state.topLevels;
    const auto covering = std::find_if(all.rbegin(), all.rend(), [&](const WindowPtr& topLevel) {
        return topLevel->visible && topLevel->bounds.contains(part);
    });
    if (covering == all.rend()) {
        fillPart(state.picture, part);
    }
    const auto first = covering == all.rend() ? all.begin() : std::prev(covering.base());
    std::for_each(first, all.end(), [&](const WindowPtr& topLevel) {
        if (topLevel->visible) {
            copyPart(state.picture, *topLevel, part.intersectedWith(topLevel->bounds));
        }
    });
}

void sendChanges(DesktopState& state) {
    const std::vector<Rect> changed = state.damage.rectangles();
    state.damage.clear();
    for (const Rect& part : changed) {
        layPart(state, part);
    }
    state.backend.present(state.picture, changed);
}

} // namespace

bool showMachineWindow(DesktopState& state) {
    const auto& all = state.topLevels;
    const bool isNeeded =
        std::any_of(all.begin(), all.end(), [](const WindowPtr& topLevel) { return topLevel->visible; });
    if (isNeeded == state.machineWindowIsShown) {
        return false;
    }
    state.machineWindowIsShown = isNeeded;
    state.backend.show(isNeeded);
    return isNeeded;
}

std::optional<Millis> presentChanges(DesktopState& state) {
    collectDamage(state);
    const Millis now = state.backend.now();
    const bool isDue = now >= state.nextSending;
    if (isDue && !state.damage.isEmpty()) {
        sendChanges(state);
        state.nextSending = now + state.backend.frameTime();
    }
    return state.damage.isEmpty() ? std::nullopt : std::optional(state.nextSending);
}

} // namespace ventrel
