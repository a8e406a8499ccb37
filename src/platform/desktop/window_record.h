// What the desktop keeps of one window. Private to this room.
//
// Records are shared only so that handles can watch them and so that one stays whole while its own handlers
// run; the tree below DesktopState owns them. A record that has left the tree has no desktop any more.

#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/desktop/window.h"

namespace ventrel {

struct DesktopState;
struct WindowRecord;

using WindowPtr = std::shared_ptr<WindowRecord>;
using WindowWeak = std::weak_ptr<WindowRecord>;

/// The picture of a top-level and what has changed in it since it was last laid onto the screen.
struct Surface {
    explicit Surface(Size size) : picture(size), damage(size) {}

    Bitmap picture;
    Damage damage;
};

/// The parts of a window that can be seen, in the picture of its top-level.
struct VisibleParts {
    std::uint64_t layout = 0; ///< the desktop's layout they were found for
    Region withChildren;      ///< siblings above and the ancestors' edges taken away
    Region own;               ///< its visible children taken away too: where it draws
};

struct WindowRecord : std::enable_shared_from_this<WindowRecord> {
    DesktopState* desktop = nullptr; ///< null once the window is gone
    WindowRecord* parent = nullptr;
    WindowRecord* owner = nullptr;
    std::vector<WindowPtr> children; ///< the uppermost last

    int id = 0;
    Rect bounds;
    bool visible = true;
    bool enabled = true;
    bool alwaysOnTop = false;
    bool activates = true;
    std::optional<Colour> background;
    std::shared_ptr<const WindowHandlers> handlers;

    Rect invalid; ///< around all that is to be painted, in its own coordinates
    VisibleParts visibleParts;

    // Of top-levels only.
    std::shared_ptr<Surface>
        surface;      ///< replaced, not changed, by another size: a canvas may be at work on it
    WindowWeak focus; ///< where its keyboard goes while it is active
    std::span<const Accelerator> accelerators;

    Window handle() { return Window(weak_from_this()); }
    Rect area() const { return Rect::at({}, bounds.size()); }
};

/// The record, or null when the window is gone.
inline WindowPtr alive(const WindowWeak& window) {
    WindowPtr record = window.lock();
    return record != nullptr && record->desktop != nullptr ? record : nullptr;
}

/// Whether handlers of the window are still called: it exists and the program is not quitting.
bool mayHandle(const WindowRecord& window);

/// Calls a handler when the window has it, keeping both whole meanwhile. A missing one answers false or none.
template <typename Result, typename... Parameters, typename... Arguments>
Result callHandler(const WindowPtr& window, std::function<Result(Parameters...)> WindowHandlers::* handler,
                   Arguments&&... arguments) {
    if (!mayHandle(*window)) {
        return Result();
    }
    const std::shared_ptr<const WindowHandlers> handlers = window->handlers;
    const auto& function = (*handlers).*handler;
    return function ? function(std::forward<Arguments>(arguments)...) : Result();
}

} // namespace ventrel
