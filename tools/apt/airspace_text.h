// Prints an airport file as the TOML source that it could have been built from.

#pragma once

#include <string>

#include "sim/airport_file.h"

namespace ventrel::apt {

/// Building the text for the file's own layout gives the file's points, names and colours again. The picture,
/// which is no text, is named by `pictureName`; none leaves it out.
std::string airspaceText(const AirportFile& airport, const std::string& pictureName);

} // namespace ventrel::apt
