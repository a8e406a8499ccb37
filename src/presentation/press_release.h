// The page that reports a collision: a sheet of paper on black, until the player has read it.

#pragma once

#include <functional>

#include "platform/desktop/desktop.h"
#include "platform/text/font.h"
#include "sim/shift_texts.h"

namespace ventrel {

inline constexpr Size letterheadSize{250, 100};

struct PressReleaseParts {
    Desktop& desktop;
    FontSet& fonts;
    Bitmap letterhead; ///< of letterheadSize; an empty one leaves its place white
    PressRelease text;
    std::function<void()> closed; ///< the page is gone
};

/// Opens the page, which stays when this returns. From one second on any key and the left button close it.
void showPressRelease(PressReleaseParts parts);

} // namespace ventrel
