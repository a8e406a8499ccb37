#include "controls/strips.h"

#include <algorithm>

#include "console/console_layout.h"
#include "platform/text/text.h"

namespace ventrel {

namespace {

constexpr FontRequest stripFont{Face::arial, -11, false};
constexpr Colour columnColour = Colour::rgb(64, 8, 0);

/// The text lines of a column stand alike at both sizes.
constexpr const StripsLayout& columnPlaces = smallConsole.strips;
static_assert(columnPlaces.pitch == largeConsole.strips.pitch &&
              columnPlaces.routeLine == largeConsole.strips.routeLine &&
              columnPlaces.stateLine == largeConsole.strips.stateLine);

void paintStrip(Canvas& canvas, const Strips& strips, int slot, const Flight& flight, const Font& font) {
    const Game& game = strips.sources.game;
    const TextStyle style{stripColour(flight, game, signalColours(strips.sources.options.aidColours)),
                          columnColour};
    const int top = slot * columnPlaces.pitch;
    drawText(canvas, font, {0, top + columnPlaces.routeLine}, stripRouteLine(flight, game), style);
    drawText(canvas, font, {0, top + columnPlaces.stateLine}, stripStateLine(flight), style);
}

void paint(Strips& strips, Canvas& canvas) {
    const Game& game = strips.sources.game;
    canvas.fill(strips.window.area(), columnColour);
    if (!game.isRunning()) {
        return;
    }
    const Font& font = strips.sources.fonts.font(stripFont);
    for (int slot = 0; slot < static_cast<int>(strips.list.slots.size()); ++slot) {
        if (const auto index = slotFlight(strips.list, slot)) {
            paintStrip(canvas, strips, slot, game.flight(*index), font);
        }
    }
}

int selectedSlot(const Strips& strips) {
    const auto& slots = strips.list.slots;
    const auto found = std::ranges::find_if(
        slots, [&](const auto& flight) { return flight && strips.sources.game.flight(*flight).selected; });
    return found == slots.end() ? noSlot : static_cast<int>(found - slots.begin());
}

void showList(Strips& strips) {
    strips.window.invalidate();
    strips.callbacks.press(selectedSlot(strips));
}

/// What a shift's end has left in the column stays there until the game is over.
void showListInGame(Strips& strips) {
    if (strips.sources.game.isRunning()) {
        showList(strips);
    }
}

} // namespace

void StripsCreate(Strips& strips, const Window& parent, Size mainWindow) {
    const StripsLayout& column = consoleLayoutFor(mainWindow.width).strips;
    strips.list = makeStripList(column.count);
    WindowHandlers handlers;
    handlers.paint = [&strips](Canvas& canvas, const Rect&) { paint(strips, canvas); };
    handlers.cursor = [&strips](Point) { return std::optional<Cursor>(&strips.sources.arrow); };
    strips.window = parent.desktop()->create(
        {.parent = parent, .id = stripsId, .bounds = column.column, .handlers = std::move(handlers)});
}

void StripsReset(Strips& strips) {
    resetStrips(strips.list);
    showList(strips);
}

void StripsRebuild(Strips& strips) {
    rebuildStrips(strips.list, strips.sources.game);
    showList(strips);
}

void StripsRepaint(Strips& strips) {
    if (strips.sources.game.isRunning()) {
        strips.window.invalidate();
    }
}

bool StripsScrollUp(Strips& strips) {
    const bool hasScrolled = scrollStripsUp(strips.list, strips.sources.game);
    showListInGame(strips);
    return hasScrolled;
}

bool StripsScrollDown(Strips& strips) {
    const bool hasScrolled = scrollStripsDown(strips.list, strips.sources.game);
    showListInGame(strips);
    return hasScrolled;
}

std::optional<FlightIndex> StripsSlotFlight(const Strips& strips, int slot) {
    return slotFlight(strips.list, slot);
}

int StripsFlightSlot(const Strips& strips, FlightIndex flight) {
    return flightSlot(strips.list, flight);
}

bool StripsSlotSelectable(const Strips& strips, int slot) {
    return isSlotSelectable(strips.list, strips.sources.game, slot);
}

} // namespace ventrel
