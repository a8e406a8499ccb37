#pragma once

namespace ventrel {

/// Which of the three alert lamps is lit.
enum class LampLevel { green = 0, yellow = 1, red = 2, none = 3 };

} // namespace ventrel
