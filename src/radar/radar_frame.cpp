#include "radar/radar_frame.h"

#include <cassert>

#include "base/format.h"
#include "platform/canvas/text.h"
#include "radar/clouds.h"

namespace ventrel {

namespace {

constexpr Colour scoreColour = Colour::rgb(0, 0xD0, 0);
constexpr Colour pauseColour = Colour::rgb(0xFF, 0xFF, 0xFF);
constexpr Size pauseBox{200, 50};
constexpr FontRequest tagFont{Face::smallFonts, 10, false};
constexpr FontRequest pauseFont{Face::arial, -40, true};
constexpr FontRequest rimPauseFont{Face::arial, -20, true};
constexpr int rimPauseDrop = 6; // pixels below the scope's upper edge

constexpr ClockSeconds blinkPeriod = 2_s;
/// The last clock second, after it became active, in which a flight blinks.
constexpr ClockSeconds blinkTime = 14_s;

FlightColours coloursOf(const Game& game) {
    return {game.airspace->flightColour, game.airspace->selectedFlightColour, game.airspace->routeColour};
}

void drawFlights(RadarWindow& radar, Canvas& canvas) {
    const Game& game = radar.sources.game;
    const Font& font = radar.sources.fonts.font(tagFont);
    for (const Flight& flight : game.flights) {
        if (flight.isOnScope()) {
            drawFlight(canvas, radar.layout, flight, coloursOf(game), font);
            drawAlertCircle(canvas, radar.layout, flight);
        }
    }
}

void drawScore(RadarWindow& radar, Canvas& canvas) {
    const std::string text = FormatText("SCORE: %d", {long{radar.sources.game.score}});
    drawText(canvas, radar.sources.fonts.font(tagFont), radar.layout.scorePosition, text, {scoreColour, {}});
}

void drawPause(RadarWindow& radar, Canvas& canvas) {
    const int size = radar.layout.scopeSize;
    const Rect middle = Rect::at({(size - pauseBox.width) / 2, (size - pauseBox.height) / 2}, pauseBox);
    TextLayout layout{.across = Align::middle, .down = Align::middle, .singleLine = true, .clip = false};
    if (radar.sources.options.aidPauseAtRim == 0) {
        drawTextBox(canvas, radar.sources.fonts.font(pauseFont), middle, "PAUSE", {pauseColour, {}}, layout);
        return;
    }
    layout.down = Align::near;
    Rect rim = radar.layout.scopeEllipse;
    rim.top += rimPauseDrop;
    drawTextBox(canvas, radar.sources.fonts.font(rimPauseFont), rim, "PAUSE", {pauseColour, {}}, layout);
}

} // namespace

void paintRadarFrame(RadarWindow& radar) {
    const Game& game = radar.sources.game;
    assert(radar.map);
    Canvas canvas(radar.backBuffer);
    canvas.draw({0, 0}, *radar.map);
    canvas.setClip(radar.scope);
    if (radar.sources.options.showRoutes != 0) {
        drawRoutes(canvas, radar.layout, game.flights, game.airspace->routeColour);
    }
    drawFlights(radar, canvas);
    drawScore(radar, canvas);
    drawClouds(canvas, game.clouds, radar.clouds);
    if (radar.callbacks.isPaused()) {
        drawPause(radar, canvas);
    }
}

void blinkNewFlights(RadarWindow& radar, ClockSeconds now) {
    const Game& game = radar.sources.game;
    if (!radar.map) {
        return;
    }
    Canvas buffer(radar.backBuffer);
    buffer.setClip(radar.scope);
    for (const Flight& flight : game.flights) {
        if (!flight.isOnScope() || now > flight.activatedAt + blinkTime) {
            continue;
        }
        const Rect box = blinkBox(radarPoint(radar.layout, flight.current().cell));
        buffer.draw(box, *radar.map, box);
        if (now % blinkPeriod == 0_s) {
            drawFlight(buffer, radar.layout, flight, coloursOf(game), radar.sources.fonts.font(tagFont));
        }
        Canvas screen = radar.window.canvas();
        screen.draw(box, radar.backBuffer, box);
        mendSweep(radar.sweep, screen, box);
    }
}

} // namespace ventrel
