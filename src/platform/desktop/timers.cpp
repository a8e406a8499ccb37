#include "platform/desktop/timers.h"

#include <algorithm>

namespace ventrel {

namespace {

bool belongsTo(const Timer& timer, const WindowRecord& window) {
    return timer.window.lock().get() == &window;
}

auto findTimer(Timers& timers, const WindowRecord& window, int number) {
    return std::find_if(timers.running.begin(), timers.running.end(), [&](const Timer& timer) {
        return timer.number == number && belongsTo(timer, window);
    });
}

bool isDueEarlier(const Timer& a, const Timer& b) {
    return a.due < b.due;
}

} // namespace

void startTimer(Timers& timers, const WindowPtr& window, int number, Millis period, Millis now) {
    stopTimer(timers, *window, number);
    period = std::max<Millis>(period, 1);
    timers.running.push_back({window, number, period, now + period});
}

void stopTimer(Timers& timers, const WindowRecord& window, int number) {
    const auto found = findTimer(timers, window, number);
    if (found != timers.running.end()) {
        timers.running.erase(found);
    }
}

void stopTimersOf(Timers& timers, const WindowRecord& window) {
    std::erase_if(timers.running, [&](const Timer& timer) { return belongsTo(timer, window); });
}

std::optional<Millis> nextTimer(const Timers& timers) {
    const auto next = std::min_element(timers.running.begin(), timers.running.end(), isDueEarlier);
    return next == timers.running.end() ? std::nullopt : std::optional(next->due);
}

std::optional<Timer> takeDueTimer(Timers& timers, Millis now) {
    const auto next = std::min_element(timers.running.begin(), timers.running.end(), isDueEarlier);
    if (next == timers.running.end() || next->due > now) {
        return std::nullopt;
    }
    Timer taken = *next;
    next->due += ((now - next->due) / next->period + 1) * next->period;
    return taken;
}

} // namespace ventrel
