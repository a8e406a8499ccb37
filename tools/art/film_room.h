// The film's last shot: the control room, whose people see the airliner roll out and cheer.

#pragma once

#include <string>

#include "tools/art/svg.h"

namespace ventrel::art {

std::string roomMaterials();

/// `moment` is in seconds from the film's start.
void drawRoom(Svg& svg, double moment);

} // namespace ventrel::art
