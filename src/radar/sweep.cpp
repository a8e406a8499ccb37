#include "radar/sweep.h"

#include <array>

namespace ventrel {

namespace {

constexpr int advancesAfterFrame = 10; // pixels of the first step

} // namespace

void SweepAdvance(Sweep& sweep, int scopeSize) {
    if (sweep.isOutward) {
        if (sweep.end.x < scopeSize) {
            ++sweep.end.x;
        } else {
            ++sweep.end.y;
        }
        if (sweep.end.y > scopeSize) {
            sweep.isOutward = false;
        }
        return;
    }
    if (sweep.end.y > 0) {
        --sweep.end.y;
    } else {
        --sweep.end.x;
    }
    if (sweep.end.x <= 0) {
        sweep.isOutward = true;
    }
}

Region sweepLine(Point end, const RadarLayout& layout, const Region& scope) {
    const int size = layout.scopeSize;
    const std::array<Point, 4> wedge{{end, {end.x + 1, end.y}, {1, size}, {0, size}}};
    return Region::polygon(wedge).intersectedWith(scope);
}

void stepSweep(Sweep& sweep, Canvas& screen, const RadarLayout& layout, const Region& scope, int steps) {
    screen.invert(sweep.drawn);
    const int advances = steps - 1 + (sweep.wasPaintedOver ? advancesAfterFrame : 1);
    sweep.wasPaintedOver = false;
    for (int i = 0; i < advances; ++i) {
        SweepAdvance(sweep, layout.scopeSize);
    }
    showSweep(sweep, screen, layout, scope);
}

void coverSweep(Sweep& sweep) {
    sweep.wasPaintedOver = true;
    sweep.drawn = {};
}

void showSweep(Sweep& sweep, Canvas& screen, const RadarLayout& layout, const Region& scope) {
    sweep.drawn = sweepLine(sweep.end, layout, scope);
    screen.invert(sweep.drawn);
}

void mendSweep(const Sweep& sweep, Canvas& screen, const Rect& area) {
    screen.invert(sweep.drawn.intersectedWith(area));
}

} // namespace ventrel
