#include "presentation/full_screen_window.h"

namespace ventrel {

Window createFullScreenWindow(Desktop& desktop, FullScreenSetup setup) {
    WindowHandlers handlers;
    if (setup.paint) {
        handlers.paint = [paint = std::move(setup.paint)](Canvas& canvas, const Rect&) { paint(canvas); };
    }
    handlers.timer = std::move(setup.timer);
    handlers.destroyed = std::move(setup.destroyed);
    if (const auto dismiss = std::move(setup.dismiss)) {
        handlers.press = [dismiss](const MouseInput& mouse) {
            if (mouse.button == MouseButton::left) {
                dismiss({});
            }
        };
        handlers.key = [dismiss](const KeyEvent& event) {
            if (event.down) {
                dismiss(event);
            }
            return true;
        };
        handlers.close = [dismiss] { dismiss({}); };
    }
    return desktop.create({.bounds = desktop.area(),
                           .alwaysOnTop = setup.alwaysOnTop,
                           .background = setup.background,
                           .handlers = std::move(handlers)});
}

void hidePointer(Desktop& desktop) {
    desktop.setCursor(static_cast<const CursorImage*>(nullptr));
}

} // namespace ventrel
