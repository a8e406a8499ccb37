// The scroll bar at the right of a list: two arrows, a thumb to pull, and pages between.
//
// A piece of the control that it scrolls, which owns it, lays it out, paints it and hands it the mouse. Lines
// count from 0; the bar knows which is uppermost.

#pragma once

#include <optional>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

class ScrollBar {
public:
    static constexpr int width = 16;
    /// Lines of a turn of the wheel by one notch.
    static constexpr int wheelLines = 3;

    /// The control and the bar's place in it.
    void lie(const Window& control, const Rect& place);
    /// How many lines there are, and how many the control shows. The uppermost stays where it can.
    void setLines(int count, int page);

    int top() const { return top_; }
    int lastTop() const;
    const Rect& place() const { return place_; }
    /// Brings a line to the top, as far as it goes, and has the control painted.
    void scrollTo(int line);
    void scrollBy(int lines) { scrollTo(top_ + lines); }

    /// A press on the bar: takes the capture for the control.
    void press(Point p);
    bool isHeld() const { return thumbGrip_ || held_ != Part::none; }
    /// The mouse moved while the bar is held.
    void move(Point p);
    void letGo();
    /// The control's timer: a part that is held scrolls on.
    void timer(int number);

    void paint(Canvas& canvas) const;

private:
    enum class Part { none, up, down, pageUp, pageDown };

    Rect upArrow() const;
    Rect downArrow() const;
    Rect track() const;
    Rect thumb() const;
    Part partAt(Point p) const;
    void scrollHeld();
    void paintArrow(Canvas& canvas, const Rect& box, ArrowDirection direction, Part part) const;

    Window control_;
    Rect place_;
    int count_ = 0;
    int page_ = 1;
    int top_ = 0;
    std::optional<int> thumbGrip_; // pixels from the thumb's top to the mouse that holds it
    Part held_ = Part::none;
    Point heldAt_; // where the mouse is meanwhile
};

} // namespace ventrel
