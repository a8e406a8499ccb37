// The running timers of all windows, by the moment at which they are due. Private to this room.

#pragma once

#include <optional>
#include <vector>

#include "platform/desktop/window_record.h"

namespace ventrel {

struct Timer {
    WindowWeak window;
    int number = 0;
    Millis period = 1;
    Millis due = 0;
};

struct Timers {
    std::vector<Timer> running;
};

/// Starts the window's timer of that number, or sets it anew.
void startTimer(Timers& timers, const WindowPtr& window, int number, Millis period, Millis now);
void stopTimer(Timers& timers, const WindowRecord& window, int number);
void stopTimersOf(Timers& timers, const WindowRecord& window);

/// When the next one is due.
std::optional<Millis> nextTimer(const Timers& timers);

/// Takes the timer that has been due longest at `now`, setting it to its next period after `now`.
std::optional<Timer> takeDueTimer(Timers& timers, Millis now);

} // namespace ventrel
