#include "radar/radar_frame.h"

#include "base/format.h"
#include "platform/canvas/text.h"
#include "radar/clouds.h"
#include "sim/alert_lamps.h"

namespace ventrel {

namespace {

constexpr Colour scoreColour = Colour::rgb(0, 0xD0, 0);
constexpr Colour pauseColour = Colour::rgb(0xFF, 0xFF, 0xFF);
constexpr Size pauseBox{200, 50};
constexpr FontRequest tagFont{Face::smallFonts, 10, false};
constexpr FontRequest pauseFont{Face::arial, -40, true};

/// The last clock second, after it became active, in which a flight blinks.
constexpr ClockSeconds blinkTime = 14;

FlightColours coloursOf(const GameState& game) {
    return {game.airport.flightColour, game.airport.selectedFlightColour, game.airport.routeColour};
}

void drawFlights(RadarWindow& radar, Canvas& canvas) {
    const GameState& game = radar.sources.game;
    const Font& font = radar.sources.fonts.font(tagFont);
    for (const Flight& flight : game.flights) {
        if (flight.isOnScope()) {
            drawFlight(canvas, radar.layout, flight, coloursOf(game), font);
            drawAlertCircle(canvas, radar.layout, flight);
            radar.callbacks.tickScroller();
        }
    }
}

void drawScore(RadarWindow& radar, Canvas& canvas) {
    const std::string text = FormatText("SCORE: %d", {long{radar.sources.game.score}});
    drawText(canvas, radar.sources.fonts.font(tagFont), radar.layout.scorePosition, text, {scoreColour, {}});
}

void drawPause(RadarWindow& radar, Canvas& canvas) {
    const int size = radar.layout.scopeSize;
    const Rect box = Rect::at({(size - pauseBox.width) / 2, (size - pauseBox.height) / 2}, pauseBox);
    const TextLayout layout{
        .across = Align::middle, .down = Align::middle, .singleLine = true, .clip = false};
    drawTextBox(canvas, radar.sources.fonts.font(pauseFont), box, "PAUSE", {pauseColour, {}}, layout);
}

} // namespace

void paintRadarFrame(RadarWindow& radar) {
    GameState& game = radar.sources.game;
    Canvas canvas(radar.backBuffer);
    canvas.draw({0, 0}, *radar.map);
    canvas.setClip(radar.scope);
    if (radar.sources.options.showRoutes != 0) {
        drawRoutes(canvas, radar.layout, game.flights, game.airport.routeColour);
    }
    drawFlights(radar, canvas);
    radar.callbacks.tickScroller();
    radar.callbacks.setLamp(gatherAlertLevel(game));
    drawScore(radar, canvas);
    if (radar.sources.options.stormTrak != 0) {
        drawClouds(canvas, game.clouds, radar.clouds, radar.callbacks.clockNow(), radar.layout.scopeSize);
    }
    if (radar.callbacks.isPaused()) {
        drawPause(radar, canvas);
    }
}

void blinkNewFlights(RadarWindow& radar, ClockSeconds now) {
    const GameState& game = radar.sources.game;
    if (!radar.map) {
        return;
    }
    Canvas buffer(radar.backBuffer);
    buffer.setClip(radar.scope);
    for (const Flight& flight : game.flights) {
        if (!flight.isOnScope() || now > flight.activatedAt + blinkTime) {
            continue;
        }
        const Rect box = blinkBox(radarPoint(radar.layout, flight.current().cell()));
        buffer.draw(box, *radar.map, box);
        if (now % 2 == 0) {
            drawFlight(buffer, radar.layout, flight, coloursOf(game), radar.sources.fonts.font(tagFont));
        }
        Canvas screen = radar.window.canvas();
        screen.draw(box, radar.backBuffer, box);
        mendSweep(radar.sweep, screen, box);
    }
}

} // namespace ventrel
