// The celebration of a new high score: a film over the whole picture, before the table is shown.

#pragma once

#include <functional>
#include <optional>

#include "platform/desktop/desktop.h"
#include "platform/images/movie_file.h"

namespace ventrel {

inline constexpr Size movieFrameSize{600, 240};

struct MovieParts {
    Desktop& desktop;
    Bitmap framePicture;             ///< of movieFrameSize, with room for the film at its right
    std::optional<MovieFile> movie;  ///< none: the frame alone is shown
    std::function<void()> playSound; ///< what is heard with the film; called as it begins
    std::function<void()> closed;    ///< it is over, or was closed
};

/// Opens it; it goes on when this returns. It ends with the film, or from five seconds on by any key and the
/// left button.
void MovieStart(MovieParts parts);

} // namespace ventrel
