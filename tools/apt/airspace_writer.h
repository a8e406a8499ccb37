// Writes an airport file (".apt") for one screen layout.

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "console/radar_layout.h"
#include "sim/airport_file.h"
#include "tools/apt/airspace_source.h"

namespace ventrel::apt {

/// Where the point stands on that layout's radar picture: the corner of its cell, where aircraft over it are
/// drawn.
Point pixelOf(const SourcePoint& point, const RadarLayout& layout);

/// The source as a file of that layout holds it.
AirportFile airportOf(const AirspaceSource& source, const RadarLayout& layout);

/// The file's bytes. `picture` is the JPEG of that layout, or empty. The same airport gives the same bytes.
std::vector<std::byte> airportFileBytes(const AirportFile& airport, std::span<const std::byte> picture);

} // namespace ventrel::apt
