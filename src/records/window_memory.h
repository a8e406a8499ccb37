// Where the program's window stood, kept in the options file for the next start.

#pragma once

#include <optional>

#include "base/geometry.h"
#include "base/profile_file.h"

namespace ventrel {

/// None at the first start, when the file tells of no window that could be seen, and when its window showed a
/// picture of another width.
std::optional<Rect> readWindowPlace(const ProfileFile& profile, int pictureWidth);

/// Sets the keys. The caller saves the file.
void writeWindowPlace(const Rect& place, int pictureWidth, ProfileFile& profile);

} // namespace ventrel
