// What the control panel draws over its artwork.

#pragma once

#include "controls/control_panel_state.h"
#include "platform/canvas/canvas.h"
#include "platform/text/font.h"

namespace ventrel {

/// Draws the moving parts over the piece of the console that lies under the panel.
void paintControlPanel(Canvas& canvas, const Bitmap& background, const ControlPanelState& panel,
                       const Game& game, const Font& font);

/// A mark at each setting that EXEC would change.
void markUnsentSettings(Canvas& canvas, const PanelOrder& pending, const UnsentSettings& unsent);

} // namespace ventrel
