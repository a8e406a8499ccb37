// What the presentations share: a window over the whole picture that a person closes by a key or a click,
// once it lets itself be closed.

#pragma once

#include <functional>
#include <optional>

#include "platform/desktop/desktop.h"

namespace ventrel {

/// Around what is presented.
inline constexpr Colour screenBlack = Colour::rgb(0, 0, 0);

/// The timer of a window that cannot be closed at once.
inline constexpr int lockTimer = 1;

struct FullScreenSetup {
    bool alwaysOnTop = true;
    std::optional<Colour> background = {};
    std::function<void(Canvas&)> paint = nullptr;
    std::function<void(int number)> timer = nullptr;
    /// A key was pressed; or, with no key, the left button, or the program's own window is to close.
    std::function<void(const std::optional<KeyEvent>&)> dismiss = nullptr;
    std::function<void()> destroyed = nullptr;
};

/// Covers all of the desktop, visible and active. No key goes beyond it.
Window createFullScreenWindow(Desktop& desktop, FullScreenSetup setup);

/// Hides the pointer wherever it is.
void hidePointer(Desktop& desktop);

} // namespace ventrel
