#include "radar/flight_drawing.h"

#include "radar/aircraft_symbol.h"

namespace ventrel {

namespace {

// How bright the line to a tag is.
constexpr unsigned leaderPart = 3;
constexpr unsigned wholePart = 5;

// All relative to the flight's radar point.
constexpr Point symbolOffset{-4, -4};
constexpr Rect blinkBoxAround{-8, -16, 32, 16};
constexpr Rect hitBoxAround{-4, -10, 14, 8};

} // namespace

FlightColours flightColours(const Airspace& airspace, const Options& options) {
    const SignalColours& signals = signalColours(options.aidColours);
    return {signals.flight.value_or(airspace.flightColour),
            signals.selected.value_or(airspace.selectedFlightColour), airspace.routeColour, signals};
}

Colour tagColour(const Flight& flight, const FlightColours& colours) {
    if (flight.alert == Alert::nearMiss) {
        return colours.signals.nearMiss;
    }
    if (flight.alert == Alert::success) {
        return colours.signals.success;
    }
    return flight.selected ? colours.selected : colours.flight;
}

Rect blinkBox(Point radarPoint) {
    return blinkBoxAround.movedBy(radarPoint);
}

Rect hitBox(Point radarPoint) {
    return hitBoxAround.movedBy(radarPoint);
}

void drawFlight(Canvas& canvas, const RadarLayout& layout, const Flight& flight, const FlightColours& colours,
                const TagLook& look) {
    const PlanStep& step = flight.current();
    const Point at = radarPoint(layout, step.cell);
    const Colour colour = tagColour(flight, colours);
    const TagTexts texts = tagTexts(flight, look.vors, look.contents);
    const TagStand stand = tagStand(measureTag(texts, look.font, look.letters), at, look.place);
    if (look.place != usualTagPlace) {
        drawTagLeader(canvas, at, stand.box, dimmed(colour, leaderPart, wholePart));
    }
    DrawAircraftSymbol(canvas, at + symbolOffset, colour, step.heading);
    drawTag(canvas, look.font, texts, stand, colour);
}

void drawRoutes(Canvas& canvas, const RadarLayout& layout, std::span<const Flight> flights, Colour colour) {
    for (const Flight& flight : flights) {
        if (!flight.isOnScope() || !flight.current().directTarget.isOn()) {
            continue;
        }
        Point from = radarPoint(layout, flight.current().cell);
        for (int k = flight.planIndex + 1; k < flight.plan.length(); ++k) {
            const Point to = radarPoint(layout, flight.plan[k].cell);
            canvas.line(from, to, colour);
            from = to;
        }
    }
}

std::optional<FlightHit> flightAt(const RadarLayout& layout, std::span<const Flight> flights, Point point) {
    int place = 0;
    for (const FlightIndex i : TablePlaces<FlightIndex>{flights.size()}) {
        const Flight& flight = flights[i.place()];
        const bool isListed = (flight.inPlay && flight.isActive()) || flight.announced;
        if (!isListed) {
            continue;
        }
        ++place;
        if (hitBox(radarPoint(layout, flight.current().cell)).contains(point)) {
            return FlightHit{i, place};
        }
    }
    return std::nullopt;
}

} // namespace ventrel
