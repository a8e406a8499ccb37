#include "controls/control_panel_drawing.h"

#include <array>
#include <string>

#include "console/panel_layout.h"
#include "controls/tight_line.h"
#include "platform/text/text.h"

namespace ventrel {

namespace {

constexpr Colour amber = Colour::rgb(255, 159, 82);
constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr Colour white = Colour::rgb(255, 255, 255);
constexpr Colour holdColour = Colour::rgb(81, 220, 255);
constexpr Colour airportColour = Colour::rgb(220, 220, 0);
constexpr Colour barredColour = Colour::rgb(200, 0, 0); // a speed that a heavy flight cannot choose

constexpr Colour unsentColour = Colour::rgb(120, 235, 255);

constexpr std::string_view holdText = "hold";

constexpr const PanelLayout& places = panelLayout;

struct Stroke {
    Point from;
    Point to;
};
/// From and to the pivot. A stroke without length is none.
using Needle = std::array<Stroke, 3>;

// clang-format off
constexpr std::array<Needle, fullCircle / headingStep> needles{{
    {{{{-1, -26}, {-1, -2}}, {{0, -26}, {0, -2}}}},                   // 0
    {{{{19, -20}, {1, -2}}, {{19, -19}, {1, -1}}, {{19, -18}, {2, -1}}}}, // 45
    {{{{1, -1}, {28, -1}}, {{1, 0}, {28, 0}}, {{1, 1}, {28, 1}}}}, // 90
    {{{{2, 1}, {21, 20}}, {{1, 1}, {21, 21}}, {{1, 2}, {20, 21}}}}, // 135
    {{{{-1, 1}, {-1, 29}}, {{0, 1}, {0, 29}}}},                   // 180
    {{{{0, 1}, {-20, 21}}, {{-1, 1}, {-21, 21}}, {{-2, 1}, {-21, 20}}}}, // 225
    {{{{-27, -1}, {-1, -1}}, {{-27, 0}, {-1, 0}}, {{-27, 1}, {-1, 1}}}}, // 270
    {{{{-18, -19}, {0, -1}}, {{-19, -19}, {-1, -1}}, {{-19, -18}, {-1, 0}}}}, // 315
}};
// clang-format on

void drawNeedle(Canvas& canvas, int heading) {
    if (heading < 0 || heading >= fullCircle || heading % headingStep != 0) {
        return;
    }
    for (const Stroke& stroke : needles[static_cast<std::size_t>(heading / headingStep)]) {
        canvas.line(places.dialMiddle + stroke.from, places.dialMiddle + stroke.to, amber);
    }
}

/// The direct button's bevel while pressed: dark on the light's side, light on the other.
void drawPressedBevel(Canvas& canvas, const Rect& button) {
    const int right = button.right - 1;
    const int bottom = button.bottom - 1;
    const std::array<Point, 3> dark{{{right - 1, button.top}, button.topLeft(), {button.left, bottom}}};
    const std::array<Point, 3> light{{{right, button.top}, {right, bottom}, {button.left, bottom}}};
    canvas.polyline(dark, black);
    canvas.polyline(light, white);
}

void drawTarget(Canvas& canvas, const PlanStep& pending, const Game& game, const Font& font) {
    const Rect& box = places.targetBox;
    canvas.filledEllipse(places.directLamp, amber, amber);
    drawPressedBevel(canvas, places.directButton);
    const auto target = pending.directTarget.point();
    if (pending.hold || !target) {
        drawTextInside(canvas, font, box.topLeft(), holdText, {holdColour, black}, box);
        return;
    }
    const Vor& vor = game.vor(*target);
    const Colour colour = vor.isAirport ? airportColour : amber;
    drawTextInside(canvas, font, box.topLeft(), vor.ident, {colour, black}, box);
}

void drawAltitudeBar(Canvas& canvas, int altitude) {
    canvas.fill(places.altitudeBar(altitude), amber);
}

const SpeedLampPlace& speedLamp(Speed speed) {
    return speed == Speed::slow ? places.slow : speed == Speed::fast ? places.fast : places.normal;
}

void drawSpeedLamps(Canvas& canvas, Speed speed, bool isHeavy) {
    canvas.fill(speedLamp(speed).lens, amber);
    if (isHeavy) {
        canvas.fill(places.slow.lens, barredColour);
        canvas.fill(places.fast.lens, barredColour);
    }
}

/// A ring around the tip of the needle.
void markHeading(Canvas& canvas, int heading) {
    constexpr int straight = 25; // pixels from the middle of the dial
    constexpr int slanting = 18; // on either axis
    constexpr Rect ring{-4, -4, 5, 5};
    const Cell ahead = stepCell({0, 0}, heading);
    const int distance = ahead.x != 0 && ahead.y != 0 ? slanting : straight;
    canvas.ellipse(ring.movedBy(places.dialMiddle + Point{ahead.x * distance, ahead.y * distance}),
                   unsentColour);
}

} // namespace

void markUnsentSettings(Canvas& canvas, const PanelOrder& pending, const UnsentSettings& unsent) {
    if (unsent.heading) {
        markHeading(canvas, pending.heading);
    }
    if (unsent.direct) {
        canvas.frame(places.targetBox, unsentColour);
    }
    if (unsent.altitude) {
        canvas.frame(places.altitudeBar(pending.altitude).grownBy(1), unsentColour);
    }
    if (unsent.speed) {
        canvas.frame(speedLamp(pending.speed).lens.grownBy(1), unsentColour);
    }
}

void paintControlPanel(Canvas& canvas, const Bitmap& background, const ControlPanelState& panel,
                       const Game& game, const Font& font) {
    canvas.draw({0, 0}, background);
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr) {
        return;
    }
    drawTightLine(canvas, font, places.preview, previewLine(panel, game), {amber, black});
    if (panel.pending.directTarget.isOn()) {
        drawTarget(canvas, panel.pending, game, font);
    } else if (flight->isAirborne()) {
        drawNeedle(canvas, panel.pending.heading);
    }
    if (flight->isAirborne()) {
        drawAltitudeBar(canvas, panel.pending.altitude);
        drawSpeedLamps(canvas, panel.pending.speed, flight->heavy);
    }
}

} // namespace ventrel
