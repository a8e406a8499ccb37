#include "radar/flight_marks.h"

#include <array>

namespace ventrel {

namespace {

constexpr int alertPenWidth = 2;
constexpr int innerRing = -5; // pixels from the outer one, on every side

// All relative to the flight's radar point.
constexpr Rect alertCircleBox{-14, -28, 34, 20};

void drawSquare(Canvas& canvas, const Rect& box, Colour colour) {
    for (int pen = 0; pen < alertPenWidth; ++pen) {
        canvas.frame(box.grownBy(-pen), colour);
    }
}

} // namespace

Rect alertCircle(Point radarPoint) {
    return alertCircleBox.movedBy(radarPoint);
}

void drawAlertMark(Canvas& canvas, const RadarLayout& layout, const Flight& flight,
                   const SignalColours& colours, MarkShapes shapes) {
    const Rect box = alertCircle(radarPoint(layout, flight.current().cell));
    switch (flight.alert) {
    case Alert::none: return;
    case Alert::success: canvas.ellipse(box, colours.successRing, alertPenWidth); return;
    case Alert::nearMiss:
        canvas.ellipse(box, colours.nearMissRing, alertPenWidth);
        if (shapes == MarkShapes::distinct) {
            canvas.ellipse(box.grownBy(innerRing), colours.nearMissRing, alertPenWidth);
        }
        return;
    case Alert::failure:
        if (shapes == MarkShapes::distinct) {
            drawSquare(canvas, box, colours.failureRing);
        } else {
            canvas.ellipse(box, colours.failureRing, alertPenWidth);
        }
        return;
    }
}

void drawConflictRing(Canvas& canvas, const RadarLayout& layout, const Flight& flight, Colour colour) {
    const int reach = layout.cellSize + 1;
    const Point at = radarPoint(layout, flight.current().cell);
    canvas.ellipse(Rect{-reach, -reach, reach, reach}.movedBy(at), colour);
}

void drawBracket(Canvas& canvas, const RadarLayout& layout, const Flight& flight, Colour colour) {
    const Rect box = bracketBox(radarPoint(layout, flight.current().cell));
    const Point last{box.right - 1, box.bottom - 1};
    const std::array<Point, 4> bracket{{box.topLeft(), {box.left, last.y}, last, {last.x, box.top - 1}}};
    canvas.polyline(bracket, colour);
}

} // namespace ventrel
