// The pictures of the program folder that the console is made of.

#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <vector>

#include "base/failure.h"
#include "controls/top_bar.h"
#include "platform/devices/backend.h"

namespace ventrel {

struct Pictures {
    Bitmap console;    ///< the main window's background
    Bitmap radarFrame; ///< the console around the scope
    std::vector<Bitmap> clouds;
    LampPictures lamps;
    Bitmap stripButtonUp;
    Bitmap stripButtonDown;
    CursorImage hand;
    CursorImage arrow;
};

/// Loads them for a main window of that width. The first that cannot be read is reported (text 1, stop icon)
/// and there is nothing.
std::optional<Pictures> loadPictures(const std::filesystem::path& programFolder, int windowWidth,
                                     const FailureReporter& report);

/// The program's icon; none, in silence, when it cannot be read.
std::optional<CursorImage> loadIcon(const std::filesystem::path& programFolder);

} // namespace ventrel
