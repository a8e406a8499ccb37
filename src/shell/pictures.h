// The pictures of the program folder that the console is made of.

#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "base/result.h"
#include "controls/top_bar.h"
#include "platform/devices/backend.h"
#include "platform/images/image.h"

namespace ventrel {

struct Pictures {
    Bitmap console;             ///< the main window's background
    Bitmap radarFrame;          ///< the console around the scope
    std::vector<Bitmap> clouds; ///< one that could not be read is clear
    LampPictures lamps;
    Bitmap stripButtonUp;
    Bitmap stripButtonDown;
    CursorImage hand;
    CursorImage arrow;
};

struct LoadedPictures {
    Pictures pictures;
    std::vector<std::string> troubles; ///< of pictures that play goes on without
};

/// Loads them for a main window of that width. A picture that cannot be read (text 1), or has another size
/// than its place on the console, is a failure; of a cloud it is a trouble.
Result<LoadedPictures> loadPictures(const std::filesystem::path& programFolder, int windowWidth);

/// The program's icon.
Result<CursorImage> loadIcon(const std::filesystem::path& programFolder);

/// A picture that is refused with another size than that one.
Result<Bitmap> loadPictureOfSize(const std::filesystem::path& programFolder, std::string_view name, Size size,
                                 ImageFormat format = ImageFormat::png);

/// A picture of any size up to that one.
Result<Bitmap> loadPicture(const std::filesystem::path& programFolder, std::string_view name, Size most);

} // namespace ventrel
