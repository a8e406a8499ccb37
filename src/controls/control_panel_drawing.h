// What the control panel draws over its artwork, and where its controls are. Positions are the panel's own
// pixels.

#pragma once

#include <optional>

#include "controls/control_panel_state.h"
#include "platform/canvas/canvas.h"
#include "platform/canvas/font.h"

namespace ventrel {

inline constexpr Size controlPanelSize{168, 109};

/// The panel's corner in a main window of that size.
constexpr Point controlPanelCorner(Size window) {
    return {window.width - 200, window.height - 128};
}

/// Draws the moving parts over the piece of the console that lies under the panel.
void paintControlPanel(Canvas& canvas, const Bitmap& background, const ControlPanelState& panel,
                       const GameState& game, const Font& font);

/// What a press in the panel asks for.
enum class PanelControl { dial, altitude, fast, normal, slow, direct, targetUp, targetDown };

/// The control under a press, and what it means there.
std::optional<PanelControl> panelControlAt(Point p);

/// Whether the pointer becomes a hand there. `directIsOn`: the pending order has a target or a hold.
bool isHandArea(Point p, bool directIsOn);

/// The heading that a press on the dial chooses; none on the few points between the fields.
std::optional<int> dialHeadingAt(Point p);

/// The altitude that a press on the scale chooses.
int scaleAltitudeAt(Point p);

} // namespace ventrel
