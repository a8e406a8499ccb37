// One window of the desktop: a rectangle with its own coordinates, painting, input and timers.
//
// `Window` is a handle, small and freely copied; the desktop owns what it names. A handle outlives its window
// safely: on a window that is gone every operation does nothing and every question answers false, zero or
// none. A window may be destroyed at any time, also by its own handlers while they run.
//
// Top-level windows have no parent and lie on the screen; each keeps its own picture. Child windows lie
// inside their parent and draw into that picture, never over a sibling above them nor over their own
// children.

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/canvas/canvas.h"
#include "platform/desktop/cursor.h"
#include "platform/devices/input.h"

namespace ventrel {

class Desktop;
struct WindowRecord;

/// How an accelerator tells its key: by what is written on it, on whatever layout, or by where it lies.
enum class KeyBy { name, place };

/// A key that stands for a command. The modifiers must agree exactly; a held key repeats its command. Of two
/// that fit, the first of the table counts.
struct Accelerator {
    Key key = Key::unknown;
    Modifiers modifiers = {};
    int command = 0;
    KeyBy by = KeyBy::name;
};

class Window {
public:
    /// No window.
    Window() = default;

    bool exists() const;
    explicit operator bool() const { return exists(); }
    /// Handles of the same window are equal, also after it is gone; so are two that name none.
    friend bool operator==(const Window& a, const Window& b) {
        return !a.record_.owner_before(b.record_) && !b.record_.owner_before(a.record_);
    }

    /// The desktop it belongs to; null when the window is gone.
    Desktop* desktop() const;

    // Kinship ---------------------------------------------------------------------------------------------

    int id() const;
    Window parent() const;
    /// The top-level window for which this top-level was opened.
    Window owner() const;
    /// The window without a parent that this one lies in: itself when it is a top-level.
    Window topLevel() const;
    /// The first direct child with that id.
    Window child(int id) const;
    /// The direct children in the order of their creation unless raised since, the uppermost last.
    std::vector<Window> children() const;
    /// Whether this is `ancestor` or lies anywhere inside it.
    bool isWithin(const Window& ancestor) const;

    /// Destroys the window with its children and the top-levels that it owns. Focus, capture, timers and
    /// posted messages go with it; an active window hands activation to its owner, else to the uppermost
    /// window. Then `destroyed` is called, for the window first and its children after it.
    void destroy() const;

    // Place -----------------------------------------------------------------------------------------------

    /// In the parent's coordinates; those of a top-level are the screen's.
    Rect bounds() const;
    Rect screenBounds() const;
    Size size() const { return bounds().size(); }
    /// (0, 0, width, height): all of the window in its own coordinates.
    Rect area() const { return Rect::at({}, size()); }
    Point toScreen(Point own) const;
    Point fromScreen(Point screen) const;

    /// Moves and resizes it at once. A child is painted anew, and so is what it uncovered; a top-level that
    /// keeps its size keeps its picture.
    void setBounds(const Rect& bounds) const;
    /// Above its siblings (a top-level: above those that are not always on top, together with those it owns).
    void raise() const;

    // Showing and enabling --------------------------------------------------------------------------------

    /// Whether it and all its ancestors are shown.
    bool isVisible() const;
    /// Showing a top-level also raises and activates it. A hidden window paints nothing and takes no input;
    /// hiding the focus or capture window takes these away.
    void show(bool visible = true) const;
    void hide() const { show(false); }

    /// Whether it itself is enabled; a disabled top-level disables all inside it.
    bool isEnabled() const;
    /// Presses on a disabled child go to its parent; presses on a disabled top-level only beep.
    void enable(bool enabled = true) const;

    // Painting --------------------------------------------------------------------------------------------

    /// Marks the window, or a part of it, to be painted once no message waits. Its children are not marked.
    /// Parts marked apart are painted as one rectangle around them.
    void invalidate() const;
    void invalidate(const Rect& part) const;
    /// Marks it with everything inside it.
    void invalidateAll() const;
    /// Paints what is marked in it and inside it now, without waiting.
    void update() const;

    /// Draws straight into what the screen shows of this window, outside its paint handler: what is drawn
    /// stays until the area is painted, and reaches the screen at the end of the loop's pass. Covers neither
    /// children nor siblings above. Use it at once and let go of it: after any window was moved, shown,
    /// hidden, made or destroyed it draws in the wrong place, or nowhere.
    Canvas canvas() const;

    // Input -----------------------------------------------------------------------------------------------

    /// Sends the keyboard here, activating the top-level. Nothing happens to hidden or disabled windows.
    void focus() const;
    bool hasFocus() const;

    /// Sends all mouse input here, wherever the pointer is, until released or lost (another window captures,
    /// a dialog opens, this one is hidden or disabled, the program is deactivated).
    void capture() const;
    /// Gives the capture back if this window has it. `captureLost` is not called.
    void releaseCapture() const;
    bool hasCapture() const;

    /// Makes it the active top-level (or its top-level, for a child), raised above the others.
    void activate() const;
    bool isActive() const;

    /// Keys pressed while this top-level is active are looked up here first. The table must outlive it.
    void setAccelerators(std::span<const Accelerator> table) const;

    // Messages and timers ---------------------------------------------------------------------------------

    /// Runs `message` from the loop, after all that were posted before it and before further input. Dropped
    /// when the window is gone by then.
    void post(std::function<void()> message) const;
    /// The command handler is called from the loop: `post` with `sendCommand`.
    void postCommand(int id) const;
    /// Calls the command handler now. A window without one passes the command to its parent.
    void sendCommand(int id, int notification = 0, const Window& sender = {}) const;

    /// Calls `timer(number)` every `period` ms (at least 1), first after one period; periods that were missed
    /// are not made up for. Starting a running timer sets it anew. Timers also run in nested loops.
    void startTimer(int number, Millis period) const;
    void stopTimer(int number) const;

private:
    friend class Desktop;
    friend struct WindowRecord;
    explicit Window(std::weak_ptr<WindowRecord> record) : record_(std::move(record)) {}

    std::weak_ptr<WindowRecord> record_;
};

/// A press, release or move of the mouse as a window gets it.
struct MouseInput {
    Point position; ///< in the window's coordinates; outside it only while it has the capture
    Point screen;
    MouseButton button = MouseButton::none; ///< none for a move
    bool doubleClick = false;               ///< the second press of a double click on the same window
    Modifiers modifiers;
};

struct CommandInput {
    int id = 0;
    int notification = 0; ///< what the sender's kind defines; 0: chosen, clicked
    Window sender;        ///< none for menus and accelerators
};

/// How the active window changes. While the program's window is minimised or behind others no window is
/// active; brought back, it reports `active` exactly once.
struct Activation {
    bool active = false;
    bool minimised = false; ///< not active because the program's window was minimised
};

/// What a window does. All are optional and called on the one thread, from the loop or from inside the
/// operation that causes them; each may do anything, also destroy its window. Positions and rectangles are
/// the window's own.
struct WindowHandlers {
    /// Paints at least `update`; the canvas lets through only what needs it. The canvas is gone afterwards.
    std::function<void(Canvas& canvas, const Rect& update)> paint = nullptr;
    /// The window is about to be painted: the moment to bring up to date what it will show, which painting
    /// leaves as it is. It may mark other windows.
    std::function<void()> prepare = nullptr;

    std::function<void(const MouseInput&)> press = nullptr;
    std::function<void(const MouseInput&)> release = nullptr;
    std::function<void(const MouseInput&)> move = nullptr;
    /// Notches, positive away from the user. Goes to the window under the pointer, then, while the answer is
    /// false, to its ancestors.
    std::function<bool(int notches)> wheel = nullptr;
    /// Which pointer to show at that point; asked on every move while the mouse is not captured. Without a
    /// handler or an answer the parent is asked with its own coordinates; a top-level shows the arrow.
    std::function<std::optional<Cursor>(Point)> cursor = nullptr;

    /// A key went down (again, when held) or up. Goes to the focus window, then, while the answer is false,
    /// to its ancestors. The text of a key press that was handled is not delivered.
    std::function<bool(const KeyEvent&)> key = nullptr;
    /// Top-levels that do not activate: a key while the pointer is over them and nobody holds the mouse,
    /// before anybody else is asked. True when it was meant for this one.
    std::function<bool(const KeyEvent&)> hoverKey = nullptr;
    /// Typed characters in Windows-1252; passed on like keys.
    std::function<bool(std::string_view)> text = nullptr;
    /// The keyboard arrives at, or leaves, this very window.
    std::function<void(bool gained)> focus = nullptr;
    /// The capture went elsewhere without `releaseCapture`.
    std::function<void()> captureLost = nullptr;

    std::function<void(const CommandInput&)> command = nullptr;
    std::function<void(int number)> timer = nullptr;

    /// The window has another size; it is marked to be painted already.
    std::function<void(Size)> resized = nullptr;
    /// Top-levels: it becomes, or ceases to be, the window the person works in.
    std::function<void(Activation)> activate = nullptr;
    /// Top-levels: a person asks to close it. Without a handler the owner is asked, in the end the main
    /// window, without whose handler the program quits. While a dialog runs it alone is asked, and the
    /// program quits when it has no handler.
    std::function<void()> close = nullptr;
    /// Top-levels: somebody pressed on a window that this one, being modal, locks. The beep has sounded.
    std::function<void()> lockedOut = nullptr;
    /// The main window: the program's window was minimised (true) or restored (false).
    std::function<void(bool minimised)> minimise = nullptr;

    /// The window is gone. Also called for windows that go with their parent or owner, but not for those that
    /// the desktop's own end takes with it.
    std::function<void()> destroyed = nullptr;
};

/// How a window is made.
struct WindowSetup {
    Window parent = {}; ///< none: a top-level
    Window owner = {};  ///< of a top-level: it stays above this one and goes when this one goes
    int id = 0;
    Rect bounds = {}; ///< in the parent's or the screen's coordinates
    bool visible = true;
    bool enabled = true;
    bool alwaysOnTop = false; ///< a top-level above all that are not
    bool activates = true;    ///< false: showing or pressing on this top-level leaves the active one active
    /// Fills what is to be painted before the paint handler is called. None: the handler covers all.
    std::optional<Colour> background = {};
    WindowHandlers handlers = {};
};

} // namespace ventrel
