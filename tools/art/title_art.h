// The title that the opening uncovers.

#pragma once

#include <string>
#include <string_view>

namespace ventrel::art {

/// 799 x 577 pixels, with the materials of assets/art/materials.svgpart: an evening's landing, seen over the
/// desk of the control room, under the program's name.
std::string drawTitle(std::string_view materials);

} // namespace ventrel::art
