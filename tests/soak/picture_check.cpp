#include "tests/soak/picture_check.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/images/png_writer.h"

namespace ventrel {

namespace {

/// The box around all that differs; an empty one when nothing does.
Rect differenceOf(const Bitmap& before, const Bitmap& after) {
    Rect box;
    for (int y = 0; y < before.height(); ++y) {
        const auto a = before.row(y);
        const auto b = after.row(y);
        const auto first = std::mismatch(a.begin(), a.end(), b.begin());
        if (first.first == a.end()) {
            continue;
        }
        const auto last = std::mismatch(a.rbegin(), a.rend(), b.rbegin());
        const Rect row{static_cast<int>(first.first - a.begin()), y,
                       static_cast<int>(last.first.base() - a.begin()), y + 1};
        box = box.isEmpty() ? row : box.unitedWith(row);
    }
    return box;
}

std::string boxText(const Rect& box) {
    return std::to_string(box.left) + "," + std::to_string(box.top) + " to " + std::to_string(box.right) +
           "," + std::to_string(box.bottom);
}

/// Whether painting it anew shows something else on purpose: the instruments follow a game each at a pace of
/// its own, and the ticker keeps nothing of what has scrolled by.
bool isPaintedInItsOwnTime(const Shell& shell, const Window& window) {
    const TopBar& bar = shell.topBar;
    const std::array instruments{shell.radar.window, bar.clockWindow, bar.scopeWindow, shell.panel.window,
                                 shell.strips.window};
    return window == shell.scroller.window ||
           (shell.game.phase != Phase::idle && std::ranges::find(instruments, window) != instruments.end());
}

void markAll(const Shell& shell, const Window& window) {
    if (!window.isVisible() || isPaintedInItsOwnTime(shell, window)) {
        return;
    }
    window.invalidate();
    for (const Window& child : window.children()) {
        markAll(shell, child);
    }
}

} // namespace

void PictureCheck::paintAll(Program& program, const Bitmap& screen) {
    before_ = screen;
    for (const Window& topLevel : program.desktop().topLevels()) {
        markAll(program.shell(), topLevel);
        topLevel.update();
    }
}

void PictureCheck::keep(const std::string& name, const Bitmap& picture) const {
    if (const auto written = writePng(kept_ / name, picture); !written) {
        std::printf("%s\n", written.error().text.c_str());
    }
}

std::optional<std::string> PictureCheck::compare(Program& program, const Bitmap& screen,
                                                 const std::string& name) {
    const Rect unsent = differenceOf(screen, program.desktop().picture());
    if (!unsent.isEmpty()) {
        return "the screen has not been sent what changed at " + boxText(unsent);
    }
    if (!before_) {
        return std::nullopt;
    }
    const Rect differs = differenceOf(*before_, screen);
    if (differs.isEmpty()) {
        return std::nullopt;
    }
    if (!kept_.empty()) {
        keep(name + "_before.png", *before_);
        keep(name + "_after.png", screen);
    }
    return "a full repaint changes the picture at " + boxText(differs);
}

} // namespace ventrel
