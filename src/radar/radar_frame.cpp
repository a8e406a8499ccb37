#include "radar/radar_frame.h"

#include <cassert>

#include "base/format.h"
#include "platform/text/text.h"
#include "radar/clouds.h"
#include "radar/flight_marks.h"

namespace ventrel {

namespace {

constexpr Colour scoreColour = Colour::rgb(0, 0xD0, 0);
constexpr Colour pauseColour = Colour::rgb(0xFF, 0xFF, 0xFF);
constexpr Size pauseBox{200, 50};
constexpr FontRequest pauseFont{Face::arial, -40, true};
constexpr FontRequest rimPauseFont{Face::arial, -20, true};

constexpr ClockSeconds blinkPeriod = 2_s;
/// The last clock second, after it became active, in which a flight blinks.
constexpr ClockSeconds blinkTime = 14_s;

bool isBlinking(const Flight& flight, ClockSeconds now) {
    return flight.isOnScope() && now <= flight.activatedAt + blinkTime;
}

FlightColours coloursOf(const RadarWindow& radar) {
    return flightColours(*radar.sources.game.airspace, radar.sources.options);
}

/// What stands around a flight, under it and over it.
void drawMarksUnder(RadarWindow& radar, Canvas& canvas, FlightIndex index) {
    const Flight& flight = radar.sources.game.flight(index);
    const Options& options = radar.sources.options;
    const FlightColours colours = coloursOf(radar);
    if (options.aidConflicts != 0 && radar.callbacks.isEndangered(index)) {
        drawConflictRing(canvas, radar.layout, flight, colours.signals.conflictRing);
    }
    if (options.aidColours != 0 && flight.selected) {
        drawBracket(canvas, radar.layout, flight, tagColour(flight, colours));
    }
}

void drawMarkOver(RadarWindow& radar, Canvas& canvas, const Flight& flight) {
    const int aid = radar.sources.options.aidColours;
    drawAlertMark(canvas, radar.layout, flight, signalColours(aid),
                  aid != 0 ? MarkShapes::distinct : MarkShapes::alike);
}

/// Whether a flight that has just become active is not to be seen this second.
bool isBlinkedOff(const Flight& flight, ClockSeconds now) {
    return isBlinking(flight, now) && now % blinkPeriod != 0_s;
}

enum class NewFlights { shown, blinking };

void drawFlights(RadarWindow& radar, Canvas& canvas, NewFlights look) {
    const Game& game = radar.sources.game;
    TagLook tag = tagLook(aidScene(radar));
    for (const FlightIndex i : game.flightPlaces()) {
        const Flight& flight = game.flight(i);
        if (!flight.isOnScope()) {
            continue;
        }
        drawMarksUnder(radar, canvas, i);
        if (look == NewFlights::shown || !isBlinkedOff(flight, game.clock)) {
            tag.place = tagPlaceOf(radar.aids.tags, i);
            drawFlight(canvas, radar.layout, flight, coloursOf(radar), tag);
        }
        drawMarkOver(radar, canvas, flight);
    }
}

void drawScore(RadarWindow& radar, Canvas& canvas) {
    const std::string text = FormatText("SCORE: %d", {long{radar.sources.game.score}});
    drawText(canvas, radar.sources.fonts.font(usualTagFont.request), radar.layout.scorePosition, text,
             {scoreColour, {}});
}

void drawPause(RadarWindow& radar, Canvas& canvas) {
    const int size = radar.layout.scopeSize;
    const Rect middle = Rect::at({(size - pauseBox.width) / 2, (size - pauseBox.height) / 2}, pauseBox);
    const TextLayout layout{
        .across = Align::middle, .down = Align::middle, .singleLine = true, .clip = false};
    if (radar.sources.options.aidPauseAtRim == 0) {
        drawTextBox(canvas, radar.sources.fonts.font(pauseFont), middle, "PAUSE", {pauseColour, {}}, layout);
        return;
    }
    drawTextBox(canvas, radar.sources.fonts.font(rimPauseFont), rimPauseBox(radar.layout), "PAUSE",
                {pauseColour, {}}, layout);
}

std::optional<UnsentOrder> unsentOrder(const RadarWindow& radar) {
    return radar.sources.options.aidOrderLine != 0 ? radar.callbacks.unsentOrder() : std::nullopt;
}

void paintFrame(RadarWindow& radar, NewFlights look) {
    const Game& game = radar.sources.game;
    assert(radar.map);
    Canvas canvas(radar.backBuffer);
    canvas.draw({0, 0}, *radar.map);
    canvas.setClip(radar.scope);
    if (radar.sources.options.showRoutes != 0) {
        drawRoutes(canvas, radar.layout, game.flights, game.airspace->routeColour);
    }
    drawUnderFlights(canvas, radar.aids, aidScene(radar), unsentOrder(radar));
    drawFlights(radar, canvas, look);
    drawScore(radar, canvas);
    drawClouds(canvas, game.clouds, radar.clouds);
    if (radar.callbacks.isPaused()) {
        drawPause(radar, canvas);
    }
}

/// Hides or shows the flight by its own little box.
void blinkFlight(RadarWindow& radar, const Flight& flight, ClockSeconds now) {
    Canvas buffer(radar.backBuffer);
    assert(radar.map);
    buffer.setClip(radar.scope);
    const Rect box = blinkBox(radarPoint(radar.layout, flight.current().cell));
    buffer.draw(box, *radar.map, box);
    if (!isBlinkedOff(flight, now)) {
        drawFlight(buffer, radar.layout, flight, coloursOf(radar),
                   {.font = radar.sources.fonts.font(usualTagFont.request)});
    }
    Canvas screen = radar.window.canvas();
    screen.draw(box, radar.backBuffer, box);
    mendSweep(radar.sweep, screen, box);
}

} // namespace

void paintRadarFrame(RadarWindow& radar) {
    paintFrame(radar, NewFlights::shown);
}

AidScene aidScene(const RadarWindow& radar) {
    const RadarSources& sources = radar.sources;
    return {sources.game, sources.options, sources.fonts, radar.layout};
}

void refreshRadar(RadarWindow& radar) {
    paintFrame(radar, NewFlights::blinking);
    Canvas screen = radar.window.canvas();
    screen.draw({0, 0}, radar.backBuffer);
    mendSweep(radar.sweep, screen, scopeSquare(radar.layout));
}

void blinkNewFlights(RadarWindow& radar, ClockSeconds now) {
    if (!radar.map) {
        return;
    }
    const bool isWhole = hasScopeAids(radar.sources.options); // no little box holds all of a flight then
    for (const Flight& flight : radar.sources.game.flights) {
        if (!isBlinking(flight, now)) {
            continue;
        }
        if (isWhole) {
            refreshRadar(radar);
            return;
        }
        blinkFlight(radar, flight, now);
    }
}

} // namespace ventrel
