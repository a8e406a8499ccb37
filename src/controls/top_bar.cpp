#include "controls/top_bar.h"

#include <algorithm>

#include "console/console_layout.h"
#include "controls/console_piece.h"
#include "controls/top_bar_drawing.h"

namespace ventrel {

namespace {

constexpr FontRequest clockFont{Face::arial, -14, false};

std::size_t lampNumber(LampLevel level) {
    return static_cast<std::size_t>(level);
}

const Bitmap& lampPicture(const TopBar& bar, std::size_t lamp) {
    const bool isBright = lampNumber(bar.sources.game.litLamp) == lamp && bar.blink.isOn;
    return (isBright ? bar.lampPictures.bright : bar.lampPictures.dark)[lamp];
}

void createClock(TopBar& bar, const Window& parent, const Rect& place) {
    WindowHandlers handlers;
    handlers.paint = [&bar](Canvas& canvas, const Rect&) {
        paintClock(canvas, bar.sources.game, bar.sources.fonts.font(clockFont));
    };
    handlers.press = [&bar](const MouseInput& mouse) {
        if (mouse.button == MouseButton::left) {
            bar.skip();
        }
    };
    handlers.cursor = [&bar](Point) {
        const bool isHand = bar.sources.game.isRunning();
        return std::optional<Cursor>(isHand ? &bar.sources.hand : &bar.sources.arrow);
    };
    bar.clockWindow = bar.sources.desktop.create(
        {.parent = parent, .id = clockId, .bounds = place, .handlers = std::move(handlers)});
}

void createSmallScope(TopBar& bar, const Window& parent, const Bitmap& console, const Rect& place) {
    bar.scopeBackground = consolePiece(console, place);
    WindowHandlers handlers;
    handlers.paint = [&bar](Canvas& canvas, const Rect&) {
        const Airspace& airspace = *bar.sources.game.airspace;
        const std::span<const Blip> blips =
            bar.sources.game.isRunning() ? std::span<const Blip>(bar.blips) : std::span<const Blip>();
        paintSmallScope(canvas, bar.scopeBackground, blips, bar.clock.sweepIndex, airspace.flightColour,
                        airspace.selectedFlightColour);
    };
    handlers.cursor = [&bar](Point) { return std::optional<Cursor>(&bar.sources.arrow); };
    bar.scopeWindow = bar.sources.desktop.create(
        {.parent = parent, .id = smallScopeId, .bounds = place, .handlers = std::move(handlers)});
}

void createLamp(TopBar& bar, const Window& parent, const Bitmap& console, const Rect& place,
                std::size_t lamp) {
    bar.lampBackgrounds[lamp] = consolePiece(console, place);
    WindowHandlers handlers;
    handlers.paint = [&bar, lamp](Canvas& canvas, const Rect&) {
        paintLamp(canvas, bar.lampBackgrounds[lamp], lampPicture(bar, lamp));
    };
    handlers.cursor = [&bar](Point) { return std::optional<Cursor>(&bar.sources.arrow); };
    bar.lampWindows[lamp] = bar.sources.desktop.create(
        {.parent = parent, .id = lampIds[lamp], .bounds = place, .handlers = std::move(handlers)});
}

} // namespace

void TopBarCreate(TopBar& bar, const Window& parent, const Bitmap& console, LampPictures lamps) {
    bar.lampPictures = std::move(lamps);
    const TopBarLayout& places = consoleLayoutFor(console.size().width).topBar;
    createClock(bar, parent, places.clock);
    createSmallScope(bar, parent, console, places.smallScope);
    for (std::size_t lamp = 0; lamp < lampIds.size(); ++lamp) {
        createLamp(bar, parent, console, places.lamps[lamp], lamp);
    }
}

std::optional<Millis> ClockTick(TopBar& bar) {
    const ClockTickResult result = ClockTick(bar.clock, bar.sources.game, bar.sources.desktop.now());
    if (result.clockPaintDue) {
        bar.clockWindow.invalidate();
    }
    if (result.sweepMoved) {
        bar.scopeWindow.invalidate();
    }
    if (!result.running) {
        return std::nullopt;
    }
    return std::min(bar.clock.lastClockTick + secondLength(bar.clock.pace),
                    bar.clock.lastSweepTick + sweepStepLength) +
           1;
}

void ClockSkip(TopBar& bar) {
    if (bar.sources.game.isRunning()) {
        ClockSkip(bar.clock, bar.sources.game, bar.sources.desktop.now());
        bar.clockWindow.invalidate();
    }
}

void ClockReset(TopBar& bar) {
    bar.sources.game.clock = {};
    bar.blips.clear();
    bar.clockWindow.invalidate();
    bar.scopeWindow.invalidate();
}

void ScopeUpdateBlips(TopBar& bar) {
    bar.blips = scopeBlips(bar.sources.game);
}

std::optional<Millis> LampsTick(TopBar& bar) {
    const LampsTickResult result = LampsTick(bar.blink, bar.sources.game, bar.sources.desktop.now());
    if (result == LampsTickResult::asleep) {
        return std::nullopt;
    }
    if (result == LampsTickResult::flipped) {
        bar.lampWindows[lampNumber(bar.sources.game.litLamp)].invalidate();
    }
    return bar.blink.last + lampBlinkInterval + 1;
}

void LampsReset(TopBar& bar) {
    bar.sources.game.litLamp = LampLevel::none;
    LampsRepaint(bar);
}

void LampsRepaint(TopBar& bar) {
    for (const Window& lamp : bar.lampWindows) {
        lamp.invalidate();
    }
}

} // namespace ventrel
