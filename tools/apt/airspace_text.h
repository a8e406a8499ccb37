// Prints an airport file as the TOML source that it could have been built from.

#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "base/result.h"
#include "sim/airport_file.h"

namespace ventrel::apt {

/// How a source names the picture, which is no text.
struct ShownPicture {
    std::string name;   ///< of the file beside the source, in Windows-1252; empty leaves it out
    std::string remark; ///< a comment about it; empty: none
};

/// The text, in Windows-1252. Built for the file's own layout it gives the same bytes again, but for what its
/// opening comments say. Fails with the reasons when no source can say what the file holds, such as a name
/// that fills its field. `file` are the bytes of the airport.
Result<std::string> airspaceText(const AirportFile& airport, std::span<const std::byte> file,
                                 const ShownPicture& picture);

} // namespace ventrel::apt
