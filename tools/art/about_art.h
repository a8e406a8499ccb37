// The picture of the About dialog.

#pragma once

#include <string>
#include <string_view>

namespace ventrel::art {

/// 480 x 320 pixels, with the materials of assets/art/materials.svgpart. Its lowest 64 rows have the plain
/// grey of dialogs, for the button and the version.
std::string drawAbout(std::string_view materials);

} // namespace ventrel::art
