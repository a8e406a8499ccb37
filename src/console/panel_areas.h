// What a press on the control panel asks for. Positions are the panel's own pixels.

#pragma once

#include <optional>

#include "console/panel_layout.h"

namespace ventrel {

enum class PanelControl { dial, altitude, fast, normal, slow, direct, targetUp, targetDown };

/// The control under a press.
std::optional<PanelControl> panelControlAt(Point p);

/// Whether the pointer becomes a hand there. `directIsOn`: the pending order has a target or a hold.
bool isHandArea(Point p, bool directIsOn);

/// The heading that a press on the dial chooses; none on the few points between the fields.
std::optional<int> dialHeadingAt(Point p);

/// The altitude that a press on the scale chooses, in thousands of feet.
int scaleAltitudeAt(Point p);

} // namespace ventrel
