// The ticker: a black strip in the top bar through which every message scrolls, one line at a time.
//
// Lines come from the simulation's queue. They are drawn straight onto the window, pixel by pixel; its paint
// is black.

#pragma once

#include <functional>

#include "controls/scroller_state.h"
#include "options/options.h"
#include "platform/desktop/desktop.h"
#include "platform/text/font.h"

namespace ventrel {

inline constexpr int scrollerId = 503;

struct ScrollerSources {
    Desktop& desktop;
    const Options& options;
    FontSet& fonts;
    const CursorImage& arrow;
    MessageQueue& queue; ///< of the game
};

struct Scroller {
    ScrollerSources sources;
    /// The queue has run empty after the game-over line.
    std::function<void()> gameOverShown = {};

    Window window = {};
    ScrollerState state = {};
    Bitmap line = {}; ///< the picture of the line under way
};

/// Makes the strip in a main window of that width. The record must stay where it is from then on.
void ScrollerCreate(Scroller& scroller, const Window& parent, int mainWindowWidth);

/// Queues a line; false when the queue drops it.
bool ScrollerPost(Scroller& scroller, std::string_view text, MessageClass messageClass);

/// Moves the line when its time has come. Returns when it wants its next call; none when nothing scrolls.
std::optional<Millis> ScrollerTick(Scroller& scroller);

/// The line under way takes the colours that are chosen now.
void ScrollerRecolour(Scroller& scroller);

/// Drops every line, the one under way included.
void ScrollerClear(Scroller& scroller);

/// Asks to be told when the queue runs empty.
void ScrollerSetPostGameOver(Scroller& scroller, bool armed);

} // namespace ventrel
