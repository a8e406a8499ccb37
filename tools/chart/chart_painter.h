// Paints a chart as the picture that lies under the radar's map points.

#pragma once

#include "console/radar_layout.h"
#include "platform/canvas/bitmap.h"
#include "tools/chart/chart.h"

namespace ventrel::chart {

/// The picture of that layout's radar, quiet enough for what is drawn over it. The same chart gives the same
/// pixels.
Bitmap paintedChart(const Chart& chart, const RadarLayout& layout);

} // namespace ventrel::chart
