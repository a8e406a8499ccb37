// The seam to the machine: one screen with keyboard, mouse and clipboard, and a clock.
//
// Implemented by platform/sdl for real and by platform/headless in memory. The desktop owns none of it and
// is handed one. Sound has a seam of its own.

#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/geometry.h"
#include "base/millis.h"
#include "platform/canvas/bitmap.h"
#include "platform/devices/input.h"

namespace ventrel {

/// A pointer picture with its hot spot. `mask` marks with white (0xFFFFFF) the pixels that are drawn.
/// The record is kept by its owner for as long as any window may show it.
struct CursorImage {
    Bitmap picture;
    Bitmap mask;
    Point hotSpot;
};

/// What can be known of the machine's screen before a window exists.
struct DisplayInfo {
    Size desktop; ///< of the screen in pixels
    int bitsPerPixel = 32;
};

/// The area by which a person drags the window about.
struct DragStrip {
    Rect area;
    Rect hole; ///< in it, where presses belong to the program

    bool contains(Point point) const { return area.contains(point) && !hole.contains(point); }
};

class Backend {
public:
    virtual ~Backend() = default;

    virtual Millis now() = 0;
    /// Today, where the machine stands.
    virtual std::tm today() = 0;

    /// The next event, waiting at most `limit` for it: 0 only looks, none waits for ever.
    virtual std::optional<InputEvent> wait(std::optional<Millis> limit) = 0;

    virtual DisplayInfo display() = 0;

    /// Sends the changed rectangles of the picture to the screen. The picture always has the size the backend
    /// was opened with. After WindowEvent::exposed the caller sends everything.
    virtual void present(const Bitmap& picture, std::span<const Rect> changed) = 0;

    /// How long the screen shows one picture: nobody sees more than one sent in that time.
    virtual Millis frameTime() = 0;

    /// Shows or hides the whole window. It starts hidden.
    virtual void show(bool visible) = 0;
    virtual void setTitle(std::string_view title) = 0;

    /// None hides the pointer.
    virtual void setCursor(const CursorImage* cursor) = 0;
    /// While captured, moves and releases outside the window are reported too.
    virtual void captureMouse(bool captured) = 0;
    virtual Point mousePosition() = 0;

    /// None: the window cannot be dragged.
    virtual void setDragStrip(std::optional<DragStrip> strip) = 0;
    virtual void setFullScreen(bool fullScreen) = 0;
    virtual bool isFullScreen() const = 0;
    virtual void minimise() = 0;
    virtual void restore() = 0;

    /// What the person's keyboard has written on the key at that place, in Windows-1252: "U", ";", "PageUp".
    /// Empty for a character outside that set, and for a place that no keyboard has.
    virtual std::string keyName(Key place) = 0;

    /// Windows-1252; characters outside that set are left out when reading.
    virtual std::string clipboard() = 0;
    virtual void setClipboard(std::string_view text) = 0;

    /// The machine's sound for a kind of message box. Silent where there is none.
    virtual void beep(MessageIcon kind) = 0;
};

} // namespace ventrel
