// Which letters this machine draws: another release of the font files, or of the library that draws them,
// makes other pixels of the same text.

#pragma once

#include <string>

namespace ventrel {

/// The same for two machines when they draw the program's faces alike; "none" where a face is missing.
std::string lettersOfThisMachine();

} // namespace ventrel
