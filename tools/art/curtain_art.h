// The steel shutter behind which the program opens: it sinks, and uncovers the title from above.

#pragma once

#include <string>
#include <string_view>

#include "base/geometry.h"

namespace ventrel::art {

/// Fills a screen of that size, with the materials of assets/art/materials.svgpart. Its upper edge is a rail,
/// as that edge is seen to travel.
std::string drawCurtain(Size screen, std::string_view materials);

} // namespace ventrel::art
