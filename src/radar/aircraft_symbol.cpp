#include "radar/aircraft_symbol.h"

#include <array>
#include <cstddef>

#include "sim/grid.h"

namespace ventrel {

namespace {

/// From the first point towards the second, which is itself left out. A stroke without length ends the list.
struct Stroke {
    Point from;
    Point to;
};

constexpr int mostStrokes = 7;
using Strokes = std::array<Stroke, mostStrokes>;

// clang-format off
constexpr std::array<Strokes, fullCircle / headingStep> symbols{{
    {{{{3,0},{3,7}}, {{4,0},{4,7}}, {{2,6},{6,6}}, {{2,2},{2,4}}, {{1,3},{1,5}}, {{5,2},{5,4}}, {{6,3},{6,5}}}}, // 0
    {{{{6,1},{0,7}}, {{1,2},{7,2}}, {{5,1},{5,7}}, {{0,5},{4,5}}, {{2,7},{2,3}}, {{3,3},{5,5}}}},                // 45
    {{{{1,2},{1,6}}, {{7,3},{1,3}}, {{7,4},{1,4}}, {{4,1},{4,7}}, {{5,2},{5,6}}, {{3,1},{4,1}}, {{3,6},{4,6}}}}, // 90
    {{{{5,1},{5,7}}, {{1,5},{7,5}}, {{6,6},{0,0}}, {{0,2},{4,2}}, {{2,0},{2,4}}, {{3,4},{5,2}}}},                // 135
    {{{{3,7},{3,0}}, {{4,7},{4,0}}, {{2,1},{6,1}}, {{1,3},{1,5}}, {{2,4},{2,6}}, {{5,4},{5,6}}, {{6,3},{6,5}}}}, // 180
    {{{{2,1},{2,7}}, {{1,5},{7,5}}, {{6,1},{0,7}}, {{5,0},{5,4}}, {{7,2},{3,2}}, {{3,3},{5,5}}}},                // 225
    {{{{0,3},{7,3}}, {{0,4},{7,4}}, {{6,2},{6,6}}, {{4,1},{2,1}}, {{4,6},{2,6}}, {{2,2},{2,6}}, {{3,2},{3,6}}}}, // 270
    {{{{6,2},{0,2}}, {{2,1},{2,7}}, {{7,5},{3,5}}, {{5,7},{5,3}}, {{1,1},{7,7}}, {{4,3},{2,5}}}},                // 315
}};
// clang-format on

} // namespace

void DrawAircraftSymbol(Canvas& canvas, Point corner, Colour colour, int heading) {
    if (heading < 0 || heading >= fullCircle || heading % headingStep != 0) {
        return;
    }
    for (const Stroke& stroke : symbols[static_cast<std::size_t>(heading / headingStep)]) {
        canvas.line(corner + stroke.from, corner + stroke.to, colour);
    }
}

} // namespace ventrel
