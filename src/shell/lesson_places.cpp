#include "shell/lesson_places.h"

#include <algorithm>
#include <array>

#include "lessons/lesson_shift.h"
#include "map_geometry/map_geometry.h"
#include "radar/flight_drawing.h"
#include "radar/map_drawing.h"

namespace ventrel {

namespace {

constexpr int noteFromEdge = 12;
constexpr int gap = 3;                       // from what is pointed at to the frame
constexpr Rect flightArea{-10, -17, 42, 14}; // around an aircraft with its tag
constexpr Rect scoreSize{0, 0, 100, 14};
constexpr int betweenStrips = 5; // from the end of one strip's text to the next strip

// On the control panel, clear of the words and numerals painted around its parts.
constexpr Rect dialWithBearings{-43, -38, 43, 35}; // around its middle
constexpr Rect wordsUnderLamp{-7, 0, 6, 9};        // what a speed's word takes more than its lamp
constexpr int bearingsAbovePanel = 4;

std::optional<PointIndex> pointOf(const Shell& shell, const LessonSpot& spot) {
    return pointOfIdent(shell.game.vors(), spot.point);
}

std::optional<Rect> flightSpot(const Shell& shell, FlightIndex index) {
    const Flight& flight = shell.game.flight(index);
    if (!flight.isOnScope()) {
        return std::nullopt;
    }
    const RadarLayout& layout = shell.radar.layout;
    return flightArea.movedBy(layout.corner + radarPoint(layout, flight.current().cell));
}

/// The strips that show a flight, or are about to.
int stripsInUse(const Shell& shell) {
    const auto used = std::ranges::count_if(shell.game.flights, isListed);
    return std::min(static_cast<int>(used), shell.stripSlots());
}

Rect stripRows(const Shell& shell, int first, int count) {
    const StripsLayout& strips = shell.console().strips;
    const int top = strips.column.top + strips.pitch * first;
    const int bottom = std::min(top + strips.pitch * count - betweenStrips, strips.column.bottom);
    return {strips.firstButton.left, top, strips.column.right, bottom};
}

/// None for a flight that has yet to be announced: the strips there are belong to others.
std::optional<Rect> stripSpot(const Shell& shell, FlightIndex flight) {
    const int slot = StripsFlightSlot(shell.strips, flight);
    return slot == noSlot ? std::nullopt : std::optional(stripRows(shell, slot, 1));
}

/// A point's mark with its name.
std::optional<Rect> pointSpot(const Shell& shell, const LessonSpot& spot) {
    const auto point = pointOf(shell, spot);
    if (!point) {
        return std::nullopt;
    }
    const RadarLayout& layout = shell.radar.layout;
    const Vor& vor = shell.game.vor(*point);
    const Font& font = shell.fonts.font(mapLabelFont(layout));
    const Size label{font.width(vor.ident), font.lineHeight()};
    return markerBox(layout, vor.pixel)
        .unitedWith(Rect::at(labelCorner(layout, vor, label), label))
        .movedBy(layout.corner);
}

std::optional<Rect> coneSpot(const Shell& shell, const LessonSpot& spot) {
    const auto point = pointOf(shell, spot);
    const auto marker = pointSpot(shell, spot);
    if (!point || !marker) {
        return std::nullopt;
    }
    const RadarLayout& layout = shell.radar.layout;
    const Vor& vor = shell.game.vor(*point);
    Rect area = *marker;
    if (const auto cone = approachCone(layout, vor.pixel, vor.runwayHeading)) {
        for (const MapLine& line : *cone) {
            const Point end = layout.corner + line.to;
            area = area.unitedWith(Rect::at(end, {1, 1}));
        }
    }
    return area;
}

/// An area of the control panel.
Rect onPanel(const Shell& shell, const Rect& part) {
    return part.movedBy(shell.console().controlPanel.topLeft());
}

Rect speedSpot(const LessonSpot& spot) {
    const Rect all = panelLayout.fast.lens.unitedWith(panelLayout.slow.lens);
    switch (spot.speed.value_or(Speed::normal)) {
    case Speed::fast: return panelLayout.fast.lens;
    case Speed::slow: return panelLayout.slow.lens;
    case Speed::normal: break;
    }
    return spot.speed ? panelLayout.normal.lens
                      : Rect{all.left + wordsUnderLamp.left, all.top, all.right + wordsUnderLamp.right,
                             all.bottom + wordsUnderLamp.bottom};
}

Rect wholePanel(const ConsoleLayout& console) {
    Rect panel = console.controlPanel.unitedWith(console.execButton);
    panel.top -= bearingsAbovePanel;
    return panel;
}

/// The word beside the button begins at once.
Rect directSpot() {
    Rect button = panelLayout.directButton;
    button.right -= 1;
    return button;
}

std::optional<Rect> areaOf(const Shell& shell, const LessonSpot& spot) {
    const ConsoleLayout& console = shell.console();
    const FlightIndex flight{static_cast<int>(spot.flight.value_or(0))};
    switch (spot.part) {
    case DeskPart::nothing: return std::nullopt;
    case DeskPart::flight: return flightSpot(shell, flight);
    case DeskPart::strip: return stripSpot(shell, flight);
    case DeskPart::point: return pointSpot(shell, spot);
    case DeskPart::cone: return coneSpot(shell, spot);
    case DeskPart::strips: return stripRows(shell, 0, std::max(stripsInUse(shell), 1));
    case DeskPart::panel: return wholePanel(console);
    case DeskPart::dial: return onPanel(shell, dialWithBearings.movedBy(panelLayout.dialMiddle));
    case DeskPart::altitude:
        return onPanel(shell, spot.number == 0 ? panelLayout.altitudeWell
                                               : panelLayout.altitudeBar(spot.number).grownBy(gap));
    case DeskPart::speed: return onPanel(shell, speedSpot(spot));
    case DeskPart::direct: return onPanel(shell, directSpot());
    case DeskPart::target: return onPanel(shell, panelLayout.targetUp.unitedWith(panelLayout.targetDown));
    case DeskPart::preview: return onPanel(shell, panelLayout.preview);
    case DeskPart::exec: return console.execButton;
    case DeskPart::clock: return console.topBar.clock;
    case DeskPart::ticker: return console.topBar.ticker;
    case DeskPart::lamps: return console.topBar.lamps.front().unitedWith(console.topBar.lamps.back());
    case DeskPart::score: return scoreSize.movedBy(console.radar.corner + console.radar.scorePosition);
    }
    return std::nullopt;
}

bool hidesAnAircraft(const Shell& shell, const Rect& place) {
    for (const FlightIndex i : shell.game.flightPlaces()) {
        const auto area = flightSpot(shell, i);
        if (area && area->intersects(place)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<Rect> lessonSpotArea(const Shell& shell, const LessonSpot& spot) {
    const auto area = areaOf(shell, spot);
    const Rect window = Rect::at({}, shell.windowSize());
    return area ? std::optional(area->grownBy(gap).intersectedWith(window)) : std::nullopt;
}

bool hasOpenFrame(const LessonSpot& spot) {
    switch (spot.part) {
    case DeskPart::dial:
    case DeskPart::strip: // the arrow that scrolls the list reaches into the first one
    case DeskPart::strips: return true;
    case DeskPart::speed: return !spot.speed;
    default: return false;
    }
}

Rect lessonNotePlace(const Shell& shell, int height, const std::optional<Rect>& shown) {
    const Size window = shell.windowSize();
    const Rect radar = radarWindowRect(shell.console().radar);
    const int right = window.width - noteFromEdge;
    const int bottom = shell.console().strips.column.bottom + gap;
    const Size size{lessonNoteWidth, height};
    const std::array places{
        Rect::at({right - size.width, bottom - size.height}, size),
        Rect::at({noteFromEdge, window.height - noteFromEdge - size.height}, size),
        Rect::at({noteFromEdge, radar.top}, size),
        Rect::at({right - size.width, shell.console().strips.column.top}, size),
    };
    const Rect strips = stripRows(shell, 0, stripsInUse(shell));
    const auto isFree = [&](const Rect& place) {
        return !(shown && shown->intersects(place)) && !strips.intersects(place) &&
               !hidesAnAircraft(shell, place);
    };
    const auto* const free = std::ranges::find_if(places, isFree);
    return free == places.end() ? places.front() : *free;
}

} // namespace ventrel
