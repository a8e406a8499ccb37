#include "console/panel_areas.h"

#include <algorithm>
#include <array>

namespace ventrel {

namespace {

constexpr int highestAltitude = 10;
constexpr int lowestRow = 9;

struct ControlArea {
    PanelControl control;
    Rect press;
    Rect hand;
    /// When the hand shows: always, only without a direct course, or only with one.
    enum class Needs { nothing, directOff, directOn } needs = Needs::nothing;
};

constexpr const PanelLayout& panel = panelLayout;

constexpr std::array<ControlArea, 8> areas{{
    {PanelControl::dial, panel.dialPress, panel.dialPress, ControlArea::Needs::directOff},
    {PanelControl::altitude, panel.altitudePress, panel.altitudePress},
    {PanelControl::fast, panel.fast.press, panel.fast.hand},
    {PanelControl::normal, panel.normal.press, panel.normal.hand},
    {PanelControl::slow, panel.slow.press, panel.slow.hand},
    {PanelControl::direct, panel.directPress, panel.directPress},
    {PanelControl::targetUp, panel.targetUp, panel.targetUp, ControlArea::Needs::directOn},
    {PanelControl::targetDown, panel.targetDown, panel.targetDown, ControlArea::Needs::directOn},
}};

/// A field of the dial, around its middle. The strips of the four main directions are tried before the
/// quarters.
struct DialField {
    Rect area;
    int heading;
};

constexpr std::array<DialField, 8> dialFields{{
    {{-4, -26, 3, -2}, 0},
    {{1, -4, 28, 4}, 90},
    {{-4, 1, 3, 29}, 180},
    {{-27, -4, -1, 4}, 270},
    {{-30, -30, -9, -3}, 315},
    {{-9, -30, 30, -3}, 45},
    {{-9, -3, 30, 30}, 135},
    {{-30, -3, -9, 30}, 225},
}};

} // namespace

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
    const Point fromMiddle = p - panel.dialMiddle;
    const auto* const hit = std::ranges::find_if(
        dialFields, [&](const DialField& field) { return field.area.contains(fromMiddle); });
    return hit == dialFields.end() ? std::nullopt : std::optional(hit->heading);
}

int scaleAltitudeAt(Point p) {
    const int row = (p.y - panel.altitudePress.top) / panel.altitudeRow;
    return highestAltitude - std::min(row, lowestRow);
}

} // namespace ventrel
