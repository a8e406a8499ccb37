// The message ticker's movement: one line at a time, from right to left, pixel by pixel.
//
// Takes its lines from the simulation's queue in slot order and frees each slot when its line has left the
// strip.

#pragma once

#include "console/signal_colours.h"
#include "platform/devices/backend.h"
#include "sim/message_queue.h"

namespace ventrel {

struct ScrollerState {
    bool busy = false; ///< a line is being scrolled
    int slot = 0;      ///< its slot in the queue
    int x = 0;         ///< its left edge in the strip
    int lineWidth = 0; ///< pixels; set by whoever draws the line when it has started
    Millis lastStep = 0;
    Millis stepTime = 0; ///< real time for one pixel
    int stripWidth = 0;  ///< pixels of the window
    /// Told once when the queue has run empty.
    bool postGameOver = false;
};

/// What a tick has to draw or tell.
enum class ScrollerStep {
    idle,    ///< nothing waits
    emptied, ///< nothing waits any more, and the game-over line was the last
    started, ///< a line has been taken out of the queue; its picture is to be made
    waiting, ///< it is not yet time
    moved,   ///< the line is to be drawn at `drawAt`
};

struct ScrollerTickResult {
    ScrollerStep step = ScrollerStep::idle;
    int drawAt = 0;    ///< where the line stands now, before it moved on
    bool done = false; ///< the line has left the strip and its slot is free
};

/// Asked again after a move, it tells of the next that is due (see takeStep).
ScrollerTickResult tickScroller(ScrollerState& scroller, MessageQueue& queue, Millis now, Millis frameTime);

/// Drops every line, the one under way included.
void clearScroller(ScrollerState& scroller, MessageQueue& queue);

Colour messageColour(MessageClass messageClass, const SignalColours& signals);

} // namespace ventrel
