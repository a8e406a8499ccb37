// The [picture] of an airspace source: files that hold it, or the chart from which it is drawn.

#pragma once

#include "tools/apt/airspace_source.h"
#include "tools/apt/toml_reader.h"

namespace ventrel::apt {

/// Reads the table into `source`, whose grid is read before. What is refused joins `faults`.
void readPicture(const toml::table& table, AirspaceSource& source, Faults& faults);

} // namespace ventrel::apt
