#include "tests/soak/aim.h"

#include <algorithm>
#include <vector>

#include "console/radar_layout.h"
#include "sim/grid.h"

namespace ventrel {

namespace {

Point pointIn(Chance& chance, const Rect& place) {
    return {place.left + chance.below(std::max(place.width(), 1)),
            place.top + chance.below(std::max(place.height(), 1))};
}

/// A window that can be seen, any of all its kin.
Window someWindow(Scene& scene) {
    std::vector<Window> choice;
    for (const Window& topLevel : scene.program.desktop().topLevels()) {
        if (topLevel.isVisible()) {
            choice.push_back(topLevel);
        }
    }
    if (choice.empty()) {
        return {};
    }
    // The uppermost is what a person would see to.
    Window window = scene.chance.oneIn(4) ? scene.chance.oneOf(choice) : choice.back();
    while (!window.children().empty() && !scene.chance.oneIn(8)) {
        const Window child = scene.chance.oneOf(window.children());
        if (child.isVisible()) {
            window = child;
        }
    }
    return window;
}

} // namespace

Point anywhere(Scene& scene) {
    return pointIn(scene.chance, scene.program.desktop().area());
}

Point onSomething(Scene& scene) {
    const Rect place = someWindow(scene).screenBounds().intersectedWith(scene.program.desktop().area());
    return place.isEmpty() ? anywhere(scene) : pointIn(scene.chance, place);
}

std::optional<Point> onSomeFlight(Scene& scene) {
    const Shell& shell = scene.program.shell();
    std::vector<Cell> cells;
    for (const Flight& flight : shell.game.flights) {
        if (flight.inPlay && flight.isOnScope()) {
            cells.push_back(flight.current().cell);
        }
    }
    if (cells.empty()) {
        return std::nullopt;
    }
    const RadarLayout& layout = shell.radar.layout;
    return layout.corner + radarPoint(layout, scene.chance.oneOf(cells));
}

} // namespace ventrel
