// Captions: what the pilots say, in writing, on a small plate under the ticker; an aid.
//
// The plate is there only while it says something. A line stays for a few seconds, and for less when others
// wait for it to go. All times are real ones, so that a line can be read however fast the clock runs.

#pragma once

#include <deque>
#include <string>

#include "platform/desktop/desktop.h"
#include "platform/text/font.h"

namespace ventrel {

inline constexpr int captionsId = 513;

struct CaptionsSources {
    Desktop& desktop;
    FontSet& fonts;
    const CursorImage& arrow;
};

struct Captions {
    CaptionsSources sources;

    Window window = {};
    std::deque<std::string> lines = {}; ///< the one that is shown, then those that wait
    Millis shownAt = 0;
};

/// Makes the plate, hidden, in a main window of that width. The record must stay where it is from then on.
void CaptionsCreate(Captions& captions, const Window& parent, int mainWindowWidth);

/// Shows the line, after those that wait. When too many do, the oldest of them is left out.
void CaptionsAdd(Captions& captions, std::string line);

/// Lets the next line follow when the time of the one before has passed, or takes the plate away. Returns
/// when it wants its next call; none while nothing is shown.
std::optional<Millis> CaptionsTick(Captions& captions);

/// Takes the plate away and forgets all lines.
void CaptionsClear(Captions& captions);

} // namespace ventrel
