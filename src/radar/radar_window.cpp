#include "radar/radar_window.h"

#include <algorithm>

#include "platform/devices/deadline.h"
#include "platform/images/image.h"
#include "radar/flight_marks.h"
#include "radar/map_drawing.h"
#include "radar/radar_frame.h"

namespace ventrel {

namespace {

constexpr ClockSeconds repaintInterval = 5_s;

constexpr Colour ringColour = Colour::rgb(0xFF, 0, 0);
constexpr int ringPen = 2;
constexpr int ringGrowth = 4; // pixels on every side
constexpr Millis ringInterval = 100;
constexpr Millis ringsLast = 8000;

void onPress(RadarWindow& radar, const MouseInput& mouse) {
    if (!radar.sources.game.isRunning()) {
        return;
    }
    const Point point = mouse.position;
    if (mouse.button == MouseButton::left) {
        radar.callbacks.resetTouch();
        radar.window.post([&radar, point] { RadarSelectAt(radar, point); });
    } else if (mouse.button == MouseButton::right) {
        radar.callbacks.resetTouch();
        if (RadarSelectAt(radar, point)) {
            radar.callbacks.showOrderMenu(mouse.screen);
        }
    }
}

bool isSweeping(const RadarWindow& radar) {
    return radar.sources.options.radarSweep != 0 && radar.sources.game.isRunning();
}

/// Whether its time had come.
bool moveSweep(RadarWindow& radar) {
    const Millis now = radar.desktop.now();
    const Millis frameTime = radar.desktop.frameTime();
    int steps = 0;
    while (takeStep(radar.sweep.lastStep, sweepStepTime, now, frameTime)) {
        ++steps;
    }
    if (steps == 0) {
        return false;
    }
    Canvas screen = radar.window.canvas();
    stepSweep(radar.sweep, screen, radar.layout, radar.scope, steps);
    return true;
}

/// After a frame the line moves on only when its time has come, but it is never missing.
void bringSweepBack(RadarWindow& radar) {
    if (!moveSweep(radar)) {
        Canvas screen = radar.window.canvas();
        showSweep(radar.sweep, screen, radar.layout, radar.scope);
    }
}

/// The whole window is copied, whatever part needs it, so that a frame never leaves a piece of the sweep.
void paint(RadarWindow& radar) {
    if (!radar.map) {
        return;
    }
    paintRadarFrame(radar);
    radar.window.canvas().draw({0, 0}, radar.backBuffer);
    coverSweep(radar.sweep);
    if (isSweeping(radar)) {
        bringSweepBack(radar);
    }
}

WindowHandlers handlersOf(RadarWindow& radar) {
    WindowHandlers handlers;
    handlers.prepare = [&radar] {
        radar.callbacks.makeFrame();
        followFlights(radar.aids, aidScene(radar));
    };
    handlers.paint = [&radar](Canvas&, const Rect&) { paint(radar); };
    handlers.press = [&radar](const MouseInput& mouse) { onPress(radar, mouse); };
    handlers.cursor = [&radar](Point) { return std::optional<Cursor>(&radar.sources.hand); };
    return handlers;
}

/// Brings what a new clock value asks for.
void followClock(RadarWindow& radar, ClockSeconds now) {
    radar.lastClockSeen = now;
    blinkNewFlights(radar, now);
    if (now % repaintInterval != 0_s) {
        return;
    }
    RadarRepaint(radar);
    radar.callbacks.updateBlips();
    if (now != 0_s && now % scoreReportInterval == 0_s) {
        radar.callbacks.reportScore();
    }
}

/// What the map shows of it: its upper left part, as large as the scope.
Bitmap shownPart(Bitmap picture, int scopeSize) {
    const Size shown{std::min(picture.width(), scopeSize), std::min(picture.height(), scopeSize)};
    if (shown == picture.size()) {
        return picture;
    }
    Bitmap part(shown);
    Canvas(part).draw({0, 0}, picture);
    return part;
}

} // namespace

void RadarCreate(RadarWindow& radar, const Window& parent, std::vector<Bitmap> clouds) {
    const Size size{radar.layout.scopeSize, radar.layout.scopeSize};
    radar.backBuffer = Bitmap(size);
    radar.scope = Region::ellipse(radar.layout.scopeEllipse);
    radar.clouds = std::move(clouds);
    radar.window = radar.desktop.create({.parent = parent,
                                         .id = radarWindowId,
                                         .bounds = Rect::at(radar.layout.corner, size),
                                         .visible = false,
                                         .handlers = handlersOf(radar)});
}

void RadarDecodePicture(RadarWindow& radar) {
    radar.airportImage.reset();
    Image image;
    Bitmap bitmap;
    if (ImageLoadMemory(image, radar.sources.game.airspace->picture, ImageFormat::jpeg) == ImageError::none &&
        ImageToBitmap(image, bitmap) == ImageError::none) {
        radar.airportImage = shownPart(std::move(bitmap), radar.layout.scopeSize);
    }
}

void RadarBuildMap(RadarWindow& radar, const Bitmap& frame) {
    const Options& options = radar.sources.options;
    const MapParts parts{.frame = frame,
                         .airport = radar.airportImage ? &*radar.airportImage : nullptr,
                         .vors = radar.sources.game.vors(),
                         .showPicture = options.mapDetails != 0,
                         .showGrid = options.showGrid != 0,
                         .showCentrelines = options.aidRunways != 0};
    const Font& labels = radar.sources.fonts.font(mapLabelFont(radar.layout));
    radar.map = composeMap(radar.layout, parts, labels);
    radar.window.show();
}

void RadarHide(RadarWindow& radar) {
    radar.window.hide();
    coverSweep(radar.sweep);
    radar.aids = {};
    radar.lastClockSeen = {}; // the next game begins at 0, which brings nothing yet
}

void RadarRepaint(RadarWindow& radar) {
    radar.window.invalidate();
}

void RadarRefresh(RadarWindow& radar) {
    if (radar.map && radar.window.isVisible() && radar.sources.game.isRunning()) {
        refreshRadar(radar);
    }
}

std::optional<Millis> RadarTick(RadarWindow& radar) {
    if (!radar.window.isVisible()) {
        return std::nullopt;
    }
    if (isSweeping(radar)) {
        moveSweep(radar);
    }
    const ClockSeconds now = radar.sources.game.clock;
    if (now != radar.lastClockSeen) {
        followClock(radar, now);
    }
    if (!isSweeping(radar)) {
        return std::nullopt;
    }
    return std::max(radar.sweep.lastStep + sweepStepTime, radar.desktop.nextPicture());
}

bool RadarSelectAt(RadarWindow& radar, Point point) {
    if (radar.callbacks.isTouched()) {
        return false;
    }
    const Game& game = radar.sources.game;
    const auto hit = flightAt(radar.layout, game.flights, point);
    if (hit && !game.flight(hit->flight).selected) {
        radar.callbacks.select(*hit);
    }
    return hit.has_value();
}

bool RadarCollisionRings(RadarWindow& radar, FlightIndex flight) {
    const Cell cell = radar.sources.game.flight(flight).current().cell;
    Rect ring = alertCircle(radarPoint(radar.layout, cell));
    const Millis end = radar.desktop.now() + ringsLast;
    do {
        const Millis next = radar.desktop.now() + ringInterval;
        Canvas screen = radar.window.canvas();
        screen.setClip(radar.scope);
        screen.ellipse(ring, ringColour, ringPen);
        ring = ring.grownBy(ringGrowth);
        if (!radar.desktop.pumpUntil(next)) {
            return false;
        }
    } while (radar.desktop.now() < end && !radar.sources.game.isRunning());
    return true;
}

} // namespace ventrel
