#include "platform/desktop/screen_picture.h"

#include <algorithm>
#include <optional>

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

/// Part of a row of the screen.
struct RowPart {
    int y = 0;
    int left = 0;
    int right = 0;

    std::span<Pixel> of(Bitmap& picture) const {
        return picture.row(y).subspan(static_cast<std::size_t>(left), static_cast<std::size_t>(right - left));
    }
    /// The same part, in the picture of a window that lies with its corner there on the screen.
    RowPart within(Point corner) const { return {y - corner.y, left - corner.x, right - corner.x}; }
};

void layRow(Bitmap& screen, const WindowRecord& topLevel, const RowPart& row) {
    const Rect& bounds = topLevel.bounds;
    const RowPart covered{row.y, std::max(row.left, bounds.left), std::min(row.right, bounds.right)};
    if (row.y < bounds.top || row.y >= bounds.bottom || covered.left >= covered.right) {
        return;
    }
    const RowPart inWindow = covered.within(bounds.topLeft());
    std::ranges::copy(inWindow.of(topLevel.surface->picture), covered.of(screen).begin());
}

using TopLevels = std::span<const WindowPtr>;

/// The top-levels that show in the part, from the uppermost on that covers all of it.
TopLevels showingIn(const DesktopState& state, const Rect& part) {
    const TopLevels all = state.topLevels;
    std::size_t first = all.size();
    while (first > 0) {
        const WindowRecord& topLevel = *all[--first];
        if (topLevel.visible && topLevel.bounds.contains(part)) {
            break;
        }
    }
    return all.subspan(first);
}

/// From the first to the last pixel that differs of a row that was `before`; none where all are the same.
std::optional<RowPart> difference(const RowPart& row, std::span<const Pixel> before,
                                  std::span<const Pixel> after) {
    if (std::ranges::equal(before, after)) {
        return std::nullopt;
    }
    const auto first = std::ranges::mismatch(before, after).in1;
    const auto last = std::mismatch(before.rbegin(), before.rend(), after.rbegin()).first;
    return RowPart{row.y, row.left + static_cast<int>(first - before.begin()),
                   row.right - static_cast<int>(last - before.rbegin())};
}

/// Where one top-level alone shows: copies what looks different, and adds it.
void copyPart(Bitmap& screen, const WindowRecord& topLevel, const Rect& part, Damage& changed) {
    for (int y = part.top; y < part.bottom; ++y) {
        const RowPart row{y, part.left, part.right};
        const RowPart inWindow = row.within(topLevel.bounds.topLeft());
        if (const auto differs = difference(row, row.of(screen), inWindow.of(topLevel.surface->picture))) {
            layRow(screen, topLevel, *differs);
            changed.addRun(y, differs->left, differs->right);
        }
    }
}

/// Lays the part of the screen anew, and adds what of it looks different now.
void layPart(DesktopState& state, const Rect& part, Damage& changed) {
    const TopLevels showing = showingIn(state, part);
    const bool isCovered =
        !showing.empty() && showing.front()->visible && showing.front()->bounds.contains(part);
    const auto isInTheWay = [&](const WindowPtr& above) {
        return above->visible && above->bounds.intersects(part);
    };
    if (isCovered && std::ranges::none_of(showing.subspan(1), isInTheWay)) {
        copyPart(state.picture, *showing.front(), part, changed);
        return;
    }
    std::vector<Pixel> before;
    for (int y = part.top; y < part.bottom; ++y) {
        const RowPart row{y, part.left, part.right};
        const std::span<Pixel> shown = row.of(state.picture);
        before.assign(shown.begin(), shown.end());
        if (!isCovered) {
            std::ranges::fill(shown, emptyDesktop);
        }
        for (const WindowPtr& topLevel : showing) {
            if (topLevel->visible) {
                layRow(state.picture, *topLevel, row);
            }
        }
        if (const auto differs = difference(row, before, shown)) {
            changed.addRun(y, differs->left, differs->right);
        }
    }
}

/// A frame of the scope paints all of it, but moves little: what looks as before is not sent.
void sendChanges(DesktopState& state) {
    const Millis now = state.backend.now();
    Damage changed(state.picture.size());
    for (const Rect& part : state.damage.rectangles()) {
        layPart(state, part, changed);
    }
    state.damage.clear();
    if (state.screenIsStale) {
        changed.addAll();
        state.screenIsStale = false;
    }
    if (!changed.isEmpty()) {
        state.backend.present(state.picture, changed.rectangles());
        state.nextSending = now + state.backend.frameTime();
    }
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

void sendEverything(DesktopState& state) {
    state.damage.addAll();
    state.screenIsStale = true;
}

std::optional<Millis> presentChanges(DesktopState& state) {
    collectDamage(state);
    const bool isDue = state.backend.now() >= state.nextSending;
    if (isDue && !state.damage.isEmpty()) {
        sendChanges(state);
    }
    return state.damage.isEmpty() ? std::nullopt : std::optional(state.nextSending);
}

} // namespace ventrel
