// What the film is shown on: a plate that congratulates, and beside it a still of the film.

#pragma once

#include <string>
#include <string_view>

namespace ventrel::art {

/// 600 x 240 pixels, with the materials of assets/art/materials.svgpart. The film covers its part right of
/// column 280; what lies there is what is seen where no film can be played. "film_sky.png" is to lie beside
/// the drawing.
std::string drawAward(std::string_view materials);

} // namespace ventrel::art
