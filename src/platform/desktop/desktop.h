// The virtual desktop: windows in one picture, and the loop that everything runs from.
//
// A Desktop owns its windows, the picture they are laid together in, the active window, focus, capture,
// timers and posted messages. It is handed the machine (a Backend, which must outlive it) and puts the
// picture on the screen, at most once a pass of the loop and only where it changed. Nothing is global:
// several desktops can live in one process. One thread does everything.
//
// A pass of the loop: all waiting input and posted messages, timers that are due, marked windows painted, the
// idle operation, what that marked painted, the picture sent; then sleep until something happens or the
// earliest deadline comes. A sleeping desktop takes no processor time at all.

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/desktop/window.h"

namespace ventrel {

struct DesktopState;

class Desktop {
public:
    /// An empty black picture of that size, the backend's. The machine's window appears with the first
    /// visible top-level.
    Desktop(Backend& backend, Size size);
    /// Windows that still exist vanish without their handlers being called.
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    // Windows ---------------------------------------------------------------------------------------------

    /// A new window above its siblings. A visible top-level becomes active. A parent or owner that is gone
    /// makes none.
    Window create(WindowSetup setup);

    /// The window that close requests, minimising and restoring concern in the end. None at first.
    void setMainWindow(const Window& window);

    /// The top-level that gets the keyboard; none while none is visible.
    Window activeWindow() const;
    Window focusWindow() const;
    /// All of them, hidden ones too, the uppermost last.
    std::vector<Window> topLevels() const;
    /// The innermost visible window at that point of the screen.
    Window windowAt(Point screen) const;

    // The screen ------------------------------------------------------------------------------------------

    Size size() const;
    Rect area() const { return Rect::at({}, size()); }
    /// The whole picture as it was last laid together.
    const Bitmap& picture() const;

    void setTitle(std::string_view title);
    /// The area by which a person drags the machine's window about.
    void setDragStrip(std::optional<DragStrip> strip);
    void setFullScreen(bool fullScreen);
    bool isFullScreen() const;
    void minimise();
    void restore();

    /// Shows that pointer until the next window is asked for its own (never, while the mouse is captured).
    void setCursor(Cursor cursor);
    /// Where the pointer is, in the picture's pixels.
    Point mousePosition() const;

    /// For what has no place here: clipboard, display, sounds of the machine.
    Backend& backend();

    // Time and the loop -----------------------------------------------------------------------------------

    /// Milliseconds on the clock that deadlines and timers use.
    Millis now() const;

    /// How long the screen shows one picture, and when it shows the next one after that of this pass: what
    /// moves sooner is not seen before.
    Millis frameTime() const;
    Millis nextPicture() const;

    /// The operation that drives what moves by itself. It is called whenever no message waits, outside modal
    /// loops, never from within itself, and returns the moment at which it wants its next call: none when
    /// nothing moves, at the earliest the next millisecond.
    using Idle = std::function<std::optional<Millis>()>;
    void setIdle(Idle idle);

    /// Runs until `quit`.
    void run();

    /// Ends every nested loop and `run` at once: no message, input, timer or paint is handled any more, and
    /// of all handlers only `destroyed` is still called.
    void quit();
    bool isQuitting() const;

    /// Runs a dialog: shows and activates it, locks every other top-level that it does not own, and handles
    /// messages, timers and painting (but not the idle operation) until `finished`. False when it ended
    /// because of `quit` or because the window is gone. The dialog stays open: the caller destroys it, which
    /// gives activation back.
    bool runModal(const Window& dialog, const std::function<bool()>& finished);

    /// Runs a menu: like runModal, but the active window stays active, and all mouse input and keys go to
    /// `menu` (a visible top-level that does not activate). Also ends, false, when the capture is lost.
    bool runMenu(const Window& menu, const std::function<bool()>& finished);

    /// Inside a long sequence: one pass without sleep, with the idle operation but without accelerators.
    /// False when the program is quitting: the sequence then returns at once.
    bool pumpMessages();
    /// The same, again and again, sleeping in between, until that moment.
    bool pumpUntil(Millis moment);

    /// Puts a press back to be handled again as the next input: a menu does so with the one that closed it.
    void putBack(const MouseEvent& event);

private:
    friend class Window;
    std::unique_ptr<DesktopState> state_;
};

} // namespace ventrel
