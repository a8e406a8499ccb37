// What the table of the best scores is written on.

#pragma once

#include <string>
#include <string_view>

namespace ventrel::art {

/// 689 x 600 pixels, with the materials of assets/art/materials.svgpart: a bay of ten paper strips for the
/// rows, a window with the airfield at dusk, and a shelf for the two buttons.
std::string drawScores(std::string_view materials);

} // namespace ventrel::art
