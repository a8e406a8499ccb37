#include "controls/scope_blips.h"

#include "console/console_layout.h"

namespace ventrel {

namespace {

constexpr std::size_t mostBlips = 32;
constexpr Rect face = smallConsole.topBar.smallScopeFace; // the same at both sizes
constexpr int smallScopeSize = smallConsole.topBar.smallScope.width();
constexpr Rect grid{0, 0, gridSize, gridSize};

} // namespace

std::vector<Blip> scopeBlips(const Game& game) {
    std::vector<Blip> blips;
    for (const Flight& flight : game.flights) {
        if (!flight.isOnScope()) {
            continue;
        }
        const Cell cell = flight.current().cell;
        blips.push_back({MapPointBetweenRects(face, grid, {cell.x, cell.y}), flight.selected});
        if (blips.size() == mostBlips) {
            break;
        }
    }
    return blips;
}

Point sweepPoint(int position) {
    const int along = position % smallScopeSize;
    switch (position / smallScopeSize) {
    case 0: return {along, 0};
    case 1: return {smallScopeSize, along};
    case 2: return {smallScopeSize - along, smallScopeSize};
    default: return {0, smallScopeSize - along};
    }
}

} // namespace ventrel
