#include "tools/apt/label_checks.h"

#include <algorithm>
#include <array>
#include <optional>

#include "map_geometry/map_geometry.h"
#include "tools/apt/scope_measure.h"

namespace ventrel::apt {

namespace {

/// The size of a label, a little on the large side: the map's font has narrow letters of at most this size.
struct LabelMeasure {
    int letterWidth = 0;
    int height = 0;
};
constexpr LabelMeasure smallLabels{6, 10};
constexpr LabelMeasure largeLabels{7, 11};

Rect boxAround(const std::array<MapLine, 2>& lines) {
    Rect box;
    for (const MapLine& line : lines) {
        for (const Point p : {line.from, line.to}) {
            box = box.unitedWith({p.x, p.y, p.x + 1, p.y + 1});
        }
    }
    return box;
}

/// The boxes around an airport's approach cone, and around that of the opposite direction where it may be
/// used.
std::vector<Rect> coneBoxes(const RadarLayout& layout, const Vor& vor) {
    std::vector<Rect> boxes;
    const auto add = [&](int heading) {
        if (const auto cone = vor.isAirport ? approachCone(layout, vor.pixel, heading) : std::nullopt) {
            boxes.push_back(boxAround(*cone));
        }
    };
    add(vor.runwayHeading);
    if (vor.reverseChance > 0) {
        add(turned(vor.runwayHeading, fullCircle / 2));
    }
    return boxes;
}

/// The boxes of a point's circle, runway and approach cones, which no other point's label may cover.
std::vector<Rect> drawnBoxes(const RadarLayout& layout, const Vor& vor) {
    std::vector<Rect> boxes = coneBoxes(layout, vor);
    boxes.push_back(markerBox(layout, vor.pixel));
    if (const auto runway =
            vor.isAirport ? runwayLines(layout, vor.pixel, vor.runwayHeading) : std::nullopt) {
        boxes.push_back(boxAround(*runway));
    }
    return boxes;
}

/// The largest common part of the label with any of the boxes, such as " (6 x 4 pixels)"; empty without one.
std::string overlap(const Rect& label, const std::vector<Rect>& boxes) {
    Rect most;
    for (const Rect& box : boxes) {
        const Rect common = label.intersectedWith(box);
        if (common.width() * common.height() > most.width() * most.height()) {
            most = common;
        }
    }
    return most.isEmpty()
               ? ""
               : " (" + std::to_string(most.width()) + " x " + std::to_string(most.height()) + " pixels)";
}

} // namespace

Rect labelBox(const RadarLayout& layout, const Vor& vor) {
    const bool isLarge = layout.windowWidth == largeRadarLayout.windowWidth;
    const LabelMeasure& measure = isLarge ? largeLabels : smallLabels;
    const Size size{static_cast<int>(vor.ident.size()) * measure.letterWidth, measure.height};
    return Rect::at(labelCorner(layout, vor, size), size);
}

void checkLabel(std::span<const Vor> points, std::size_t index, const RadarLayout& layout,
                Problems& problems) {
    const Vor& vor = points[index];
    const auto add = [&](const std::string& text) {
        problems.push_back({index, Subject::label, "point '" + vor.ident + "': " + text});
    };
    const Rect label = labelBox(layout, vor);
    if (const int outside = pixelsOutside(layout, label); outside > 0) {
        add("its label is cut by the edge of the scope (" + counted(outside, "pixel") + ')');
    }
    if (const auto common = overlap(label, coneBoxes(layout, vor)); !common.empty()) {
        add("its label lies in its own approach cone" + common);
    }
    for (std::size_t k = 0; k < points.size(); ++k) {
        const Vor& other = points[k];
        if (const auto common = overlap(label, {labelBox(layout, other)}); k < index && !common.empty()) {
            add("its label collides with that of '" + other.ident + '\'' + common);
        }
        if (const auto common = overlap(label, drawnBoxes(layout, other)); k != index && !common.empty()) {
            add("its label covers '" + other.ident + '\'' + common);
        }
    }
}

} // namespace ventrel::apt
