// The options in their file: one key of section "Options" for each.

#pragma once

#include "base/profile_file.h"
#include "options/options.h"

namespace ventrel {

/// Missing keys take their defaults; that of the Custom bonus follows from the planes and length just read.
Options ReadOptions(const ProfileFile& profile);

/// Sets every key but `SingleSound`. The caller saves the file.
void WriteOptions(const Options& options, ProfileFile& profile);

} // namespace ventrel
