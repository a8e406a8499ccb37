#include "platform/desktop/window.h"

#include <algorithm>

#include "platform/desktop/activation.h"
#include "platform/desktop/input_routing.h"
#include "platform/desktop/painting.h"
#include "platform/desktop/window_life.h"
#include "platform/desktop/window_tree.h"

namespace ventrel {

namespace {

Window handleOf(WindowRecord* window) {
    return window == nullptr ? Window() : window->handle();
}

/// What the canvases of windows that are gone draw on.
const Bitmap nowhere;

} // namespace

bool Window::exists() const {
    return alive(record_) != nullptr;
}

Desktop* Window::desktop() const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? nullptr : &window->desktop->desktop;
}

// Kinship -------------------------------------------------------------------------------------------------

int Window::id() const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? 0 : window->id;
}

Window Window::parent() const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? Window() : handleOf(window->parent);
}

Window Window::owner() const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? Window() : handleOf(window->owner);
}

Window Window::topLevel() const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? Window() : topLevelOf(*window).handle();
}

Window Window::child(int id) const {
    const std::vector<Window> all = children();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Window& each) { return each.id() == id; });
    return found == all.end() ? Window() : *found;
}

std::vector<Window> Window::children() const {
    std::vector<Window> result;
    if (const WindowPtr window = alive(record_)) {
        for (const WindowPtr& each : window->children) {
            result.push_back(each->handle());
        }
    }
    return result;
}

bool Window::isWithin(const Window& ancestor) const {
    const WindowPtr window = alive(record_);
    const WindowPtr outer = alive(ancestor.record_);
    return window != nullptr && outer != nullptr && ventrel::isWithin(*window, *outer);
}

void Window::destroy() const {
    if (const WindowPtr window = alive(record_)) {
        destroyWindow(window);
    }
}

// Place ---------------------------------------------------------------------------------------------------

Rect Window::bounds() const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? Rect{} : window->bounds;
}

Rect Window::screenBounds() const {
    return Rect::at(toScreen({}), size());
}

Point Window::toScreen(Point own) const {
    const WindowPtr window = alive(record_);
    return window == nullptr ? own : own + cornerOnScreen(*window);
}

Point Window::fromScreen(Point screen) const {
    return screen - toScreen({});
}

void Window::setBounds(const Rect& bounds) const {
    if (const WindowPtr window = alive(record_)) {
        setWindowBounds(window, bounds);
    }
}

void Window::raise() const {
    if (const WindowPtr window = alive(record_)) {
        raiseInSight(window);
    }
}

// Showing and enabling ------------------------------------------------------------------------------------

bool Window::isVisible() const {
    const WindowPtr window = alive(record_);
    return window != nullptr && isShown(*window);
}

void Window::show(bool visible) const {
    if (const WindowPtr window = alive(record_)) {
        showWindow(window, visible);
    }
}

bool Window::isEnabled() const {
    const WindowPtr window = alive(record_);
    return window != nullptr && window->enabled;
}

void Window::enable(bool enabled) const {
    if (const WindowPtr window = alive(record_)) {
        enableWindow(window, enabled);
    }
}

// Painting ------------------------------------------------------------------------------------------------

void Window::invalidate() const {
    invalidate(area());
}

void Window::invalidate(const Rect& part) const {
    if (const WindowPtr window = alive(record_)) {
        markInvalid(*window, part);
    }
}

void Window::invalidateAll() const {
    if (const WindowPtr window = alive(record_)) {
        markAllInvalid(*window, window->area());
    }
}

void Window::update() const {
    if (const WindowPtr window = alive(record_)) {
        paintMarkedInside(window);
    }
}

Canvas Window::canvas() const {
    const WindowPtr window = alive(record_);
    // A canvas never changes a picture that has no pixels.
    return window == nullptr ? Canvas(const_cast<Bitmap&>(nowhere)) : canvasOf(window);
}

// Input ---------------------------------------------------------------------------------------------------

void Window::focus() const {
    if (const WindowPtr window = alive(record_)) {
        setFocus(window);
    }
}

bool Window::hasFocus() const {
    const WindowPtr window = alive(record_);
    return window != nullptr && focusTarget(*window->desktop) == window;
}

void Window::capture() const {
    if (const WindowPtr window = alive(record_)) {
        captureMouse(window);
    }
}

void Window::releaseCapture() const {
    if (hasCapture()) {
        dropCapture(*alive(record_)->desktop);
    }
}

bool Window::hasCapture() const {
    const WindowPtr window = alive(record_);
    return window != nullptr && alive(window->desktop->pointer.captured) == window;
}

void Window::activate() const {
    if (const WindowPtr window = alive(record_)) {
        activateTopLevel(*window->desktop, topLevelOf(*window).shared_from_this());
    }
}

bool Window::isActive() const {
    const WindowPtr window = alive(record_);
    return window != nullptr && activeTopLevel(*window->desktop) == window;
}

void Window::setAccelerators(std::span<const Accelerator> table) const {
    if (const WindowPtr window = alive(record_)) {
        window->accelerators = table;
    }
}

// Messages and timers -------------------------------------------------------------------------------------

void Window::post(std::function<void()> message) const {
    if (const WindowPtr window = alive(record_)) {
        window->desktop->queue.posted.push_back({window, std::move(message)});
    }
}

void Window::postCommand(int id) const {
    post([window = *this, id] { window.sendCommand(id); });
}

void Window::sendCommand(int id, int notification, const Window& sender) const {
    if (const WindowPtr window = alive(record_)) {
        ventrel::sendCommand(window, CommandInput{id, notification, sender});
    }
}

void Window::startTimer(int number, Millis period) const {
    if (const WindowPtr window = alive(record_)) {
        DesktopState& state = *window->desktop;
        ventrel::startTimer(state.timers, window, number, period, state.backend.now());
    }
}

void Window::stopTimer(int number) const {
    if (const WindowPtr window = alive(record_)) {
        ventrel::stopTimer(window->desktop->timers, *window, number);
    }
}

} // namespace ventrel
