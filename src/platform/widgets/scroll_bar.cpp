#include "platform/widgets/scroll_bar.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr int shortestThumb = 8;

constexpr int repeatTimer = 1;
constexpr Millis firstRepeat = 400;
constexpr Millis nextRepeats = 60;

} // namespace

void ScrollBar::lie(const Window& control, const Rect& place) {
    control_ = control;
    place_ = place;
}

void ScrollBar::setLines(int count, int page) {
    count_ = count;
    page_ = std::max(1, page);
    top_ = std::min(top_, lastTop());
}

int ScrollBar::lastTop() const {
    return std::max(0, count_ - page_);
}

void ScrollBar::scrollTo(int line) {
    top_ = std::clamp(line, 0, lastTop());
    control_.invalidate();
}

Rect ScrollBar::upArrow() const {
    return {place_.left, place_.top, place_.right, place_.top + width};
}

Rect ScrollBar::downArrow() const {
    return {place_.left, place_.bottom - width, place_.right, place_.bottom};
}

Rect ScrollBar::track() const {
    return {place_.left, upArrow().bottom, place_.right, downArrow().top};
}

Rect ScrollBar::thumb() const {
    const Rect whole = track();
    if (lastTop() == 0) {
        return {};
    }
    const int height = std::max(shortestThumb, whole.height() * page_ / count_);
    const int y = whole.top + (whole.height() - height) * top_ / lastTop();
    return {whole.left, y, whole.right, y + height};
}

ScrollBar::Part ScrollBar::partAt(Point p) const {
    if (lastTop() == 0 || !place_.contains(p) || thumb().contains(p)) {
        return Part::none;
    }
    if (upArrow().contains(p)) {
        return Part::up;
    }
    if (downArrow().contains(p)) {
        return Part::down;
    }
    return p.y < thumb().top ? Part::pageUp : Part::pageDown;
}

void ScrollBar::press(Point p) {
    control_.capture();
    if (thumb().contains(p)) {
        thumbGrip_ = p.y - thumb().top;
        return;
    }
    held_ = partAt(p);
    heldAt_ = p;
    if (held_ != Part::none) {
        scrollHeld();
        control_.startTimer(repeatTimer, firstRepeat);
    }
}

void ScrollBar::timer(int number) {
    if (number != repeatTimer) {
        return;
    }
    control_.startTimer(repeatTimer, nextRepeats);
    if (partAt(heldAt_) == held_) {
        scrollHeld();
    }
}

void ScrollBar::scrollHeld() {
    switch (held_) {
    case Part::up: scrollBy(-1); break;
    case Part::down: scrollBy(1); break;
    case Part::pageUp: scrollBy(-page_); break;
    case Part::pageDown: scrollBy(page_); break;
    case Part::none: break;
    }
}

void ScrollBar::move(Point p) {
    if (thumbGrip_) {
        const int way = track().height() - thumb().height();
        const int at = p.y - *thumbGrip_ - track().top;
        scrollTo(way > 0 ? (at * lastTop() + way / 2) / way : 0);
    } else if (held_ != Part::none) {
        heldAt_ = p;
        control_.invalidate(place_);
    }
}

void ScrollBar::letGo() {
    thumbGrip_.reset();
    if (held_ != Part::none) {
        held_ = Part::none;
        control_.stopTimer(repeatTimer);
        control_.invalidate(place_);
    }
}

void ScrollBar::paintArrow(Canvas& canvas, const Rect& box, ArrowDirection direction, Part part) const {
    const bool isPressed = held_ == part && partAt(heldAt_) == part;
    canvas.fill(box, look::face);
    isPressed ? drawButtonEdge(canvas, box, true) : drawRaisedEdge(canvas, box);
    drawArrow(canvas, isPressed ? box.movedBy({1, 1}) : box, direction,
              lastTop() > 0 ? look::text : look::greyText);
}

void ScrollBar::paint(Canvas& canvas) const {
    canvas.fill(place_, look::softLight);
    paintArrow(canvas, upArrow(), ArrowDirection::up, Part::up);
    paintArrow(canvas, downArrow(), ArrowDirection::down, Part::down);
    if (lastTop() > 0) {
        canvas.fill(thumb(), look::face);
        drawRaisedEdge(canvas, thumb());
    }
}

} // namespace ventrel
