#include "controls/control_panel_drawing.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/canvas/text.h"

namespace ventrel {

namespace {

constexpr Colour amber = Colour::rgb(255, 159, 82);
constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr Colour white = Colour::rgb(255, 255, 255);
constexpr Colour holdColour = Colour::rgb(81, 220, 255);
constexpr Colour airportColour = Colour::rgb(220, 220, 0);
constexpr Colour barredColour = Colour::rgb(200, 0, 0); // a speed that a heavy flight cannot choose

constexpr Rect previewBox{2, 93, 167, 105};
constexpr Rect directLamp{5, 77, 15, 87};
constexpr Rect targetBox{52, 76, 76, 89};
constexpr std::string_view holdText = "hold";

/// The direct button's bevel while pressed: dark on the light's side, light on the other.
constexpr std::array<Point, 3> bevelDark{{{16, 75}, {3, 75}, {3, 89}}};
constexpr std::array<Point, 3> bevelLight{{{17, 75}, {17, 89}, {3, 89}}};

constexpr int barLeft = 113;
constexpr int barRight = 150;
constexpr int barRows = 3;
constexpr int barTopOfAltitudeZero = 93;
constexpr int altitudeRow = 9; // pixels of one thousand feet
constexpr int lowestRow = 9;
constexpr int highestAltitude = 10;

constexpr Rect fastLamp{95, 13, 101, 18};
constexpr Rect normalLamp{95, 33, 101, 38};
constexpr Rect slowLamp{95, 53, 101, 58};

struct Stroke {
    Point from;
    Point to;
};
using Needle = std::array<Stroke, 3>; // a stroke without length is none

// clang-format off
constexpr std::array<Needle, fullCircle / headingStep> needles{{
    {{{{46, 9}, {46,33}}, {{47, 9}, {47,33}}}},                   // 0
    {{{{66,15}, {48,33}}, {{66,16}, {48,34}}, {{66,17}, {49,34}}}}, // 45
    {{{{48,34}, {75,34}}, {{48,35}, {75,35}}, {{48,36}, {75,36}}}}, // 90
    {{{{49,36}, {68,55}}, {{48,36}, {68,56}}, {{48,37}, {67,56}}}}, // 135
    {{{{46,36}, {46,64}}, {{47,36}, {47,64}}}},                   // 180
    {{{{47,36}, {27,56}}, {{46,36}, {26,56}}, {{45,36}, {26,55}}}}, // 225
    {{{{20,34}, {46,34}}, {{20,35}, {46,35}}, {{20,36}, {46,36}}}}, // 270
    {{{{29,16}, {47,34}}, {{28,16}, {46,34}}, {{28,17}, {46,35}}}}, // 315
}};
// clang-format on

struct ControlArea {
    PanelControl control;
    Rect press;
    Rect hand;
    /// When the hand shows: always, only without a direct course, or only with one.
    enum class Needs { nothing, directOff, directOn } needs = Needs::nothing;
};

constexpr std::array<ControlArea, 8> areas{{
    {PanelControl::dial, {17, 5, 77, 65}, {17, 5, 77, 65}, ControlArea::Needs::directOff},
    {PanelControl::altitude, {111, 0, 161, 89}, {111, 0, 161, 89}},
    {PanelControl::fast, {93, 11, 102, 20}, {93, 11, 103, 21}},
    {PanelControl::normal, {93, 31, 102, 40}, {93, 31, 103, 41}},
    {PanelControl::slow, {93, 51, 102, 60}, {93, 51, 103, 61}},
    {PanelControl::direct, {3, 74, 18, 89}, {3, 74, 18, 89}},
    {PanelControl::targetUp, {79, 73, 90, 82}, {79, 73, 90, 82}, ControlArea::Needs::directOn},
    {PanelControl::targetDown, {79, 83, 90, 92}, {79, 83, 90, 92}, ControlArea::Needs::directOn},
}};

/// A field of the dial. The strips of the four main directions are tried before the quarters.
struct DialField {
    Rect area;
    int heading;
};

constexpr std::array<DialField, 8> dialFields{{
    {{43, 9, 50, 33}, 0},
    {{48, 31, 75, 39}, 90},
    {{43, 36, 50, 64}, 180},
    {{20, 31, 46, 39}, 270},
    {{17, 5, 38, 32}, 315},
    {{38, 5, 77, 32}, 45},
    {{38, 32, 77, 65}, 135},
    {{17, 32, 38, 65}, 225},
}};

void drawNeedle(Canvas& canvas, int heading) {
    if (heading < 0 || heading >= fullCircle || heading % headingStep != 0) {
        return;
    }
    for (const Stroke& stroke : needles[static_cast<std::size_t>(heading / headingStep)]) {
        canvas.line(stroke.from, stroke.to, amber);
    }
}

void drawTarget(Canvas& canvas, const PlanStep& pending, const GameState& game, const Font& font) {
    canvas.filledEllipse(directLamp, amber, amber);
    canvas.polyline(bevelDark, black);
    canvas.polyline(bevelLight, white);
    if (pending.hold == 1 || pending.directTarget >= game.vorCount()) {
        drawTextInside(canvas, font, targetBox.topLeft(), holdText, {holdColour, black}, targetBox);
        return;
    }
    const Vor& target = game.vor(pending.directTarget);
    const Colour colour = target.isAirport ? airportColour : amber;
    drawTextInside(canvas, font, targetBox.topLeft(), target.ident, {colour, black}, targetBox);
}

void drawAltitudeBar(Canvas& canvas, int altitude) {
    const int top = barTopOfAltitudeZero - altitudeRow * altitude;
    for (int row = 0; row < barRows; ++row) {
        canvas.line({barLeft, top + row}, {barRight, top + row}, amber);
    }
}

void drawSpeedLamps(Canvas& canvas, int speed, bool isHeavy) {
    const Rect& lit = speed == slowSpeed ? slowLamp : speed == fastSpeed ? fastLamp : normalLamp;
    canvas.fill(lit, amber);
    if (isHeavy) {
        canvas.fill(slowLamp, barredColour);
        canvas.fill(fastLamp, barredColour);
    }
}

} // namespace

void paintControlPanel(Canvas& canvas, const Bitmap& background, const ControlPanelState& panel,
                       const GameState& game, const Font& font) {
    canvas.draw({0, 0}, background);
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr) {
        return;
    }
    drawTextInside(canvas, font, previewBox.topLeft(), previewLine(panel, game), {amber, black}, previewBox);
    if (panel.pending.directTarget != noVor) {
        drawTarget(canvas, panel.pending, game, font);
    } else if (flight->isAirborne()) {
        drawNeedle(canvas, panel.pending.heading);
    }
    if (flight->isAirborne()) {
        drawAltitudeBar(canvas, panel.pending.altitude);
        drawSpeedLamps(canvas, panel.pending.speed, flight->heavy);
    }
}

std::optional<PanelControl> panelControlAt(Point p) {
    const auto* const hit =
        std::ranges::find_if(areas, [&](const ControlArea& a) { return a.press.contains(p); });
    return hit == areas.end() ? std::nullopt : std::optional(hit->control);
}

bool isHandArea(Point p, bool directIsOn) {
    return std::ranges::any_of(areas, [&](const ControlArea& area) {
        const bool isActive = area.needs == ControlArea::Needs::nothing ||
                              (area.needs == ControlArea::Needs::directOn) == directIsOn;
        return isActive && area.hand.contains(p);
    });
}

std::optional<int> dialHeadingAt(Point p) {
    const auto* const hit =
        std::ranges::find_if(dialFields, [&](const DialField& field) { return field.area.contains(p); });
    return hit == dialFields.end() ? std::nullopt : std::optional(hit->heading);
}

int scaleAltitudeAt(Point p) {
    return highestAltitude - std::min(p.y / altitudeRow, lowestRow);
}

} // namespace ventrel
