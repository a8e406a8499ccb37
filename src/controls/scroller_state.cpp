#include "controls/scroller_state.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr Colour successLine = Colour::rgb(0, 200, 0);
constexpr Colour troubleLine = Colour::rgb(220, 220, 0);
constexpr Colour emergencyLine = Colour::rgb(220, 0, 0);
constexpr Colour informationLine = Colour::rgb(36, 190, 188);

ScrollerTickResult startNextLine(ScrollerState& scroller, MessageQueue& queue, Millis now) {
    const auto next = std::ranges::find_if(queue.slots, &MessageSlot::inUse);
    if (next == queue.slots.end()) {
        queue.idle = true;
        return {scroller.postGameOver ? ScrollerStep::emptied : ScrollerStep::idle};
    }
    scroller.busy = true;
    scroller.slot = static_cast<int>(next - queue.slots.begin());
    scroller.x = scroller.stripWidth;
    scroller.lastStep = now;
    return {ScrollerStep::started};
}

} // namespace

ScrollerTickResult tickScroller(ScrollerState& scroller, MessageQueue& queue, Millis now) {
    if (!scroller.busy) {
        return queue.idle ? ScrollerTickResult{} : startNextLine(scroller, queue, now);
    }
    if (now <= scroller.lastStep + scroller.stepLength) {
        return {ScrollerStep::waiting};
    }
    scroller.lastStep = now;
    ScrollerTickResult result{ScrollerStep::moved, scroller.x};
    --scroller.x;
    const bool isVisible = scroller.lineWidth + scroller.x + 1 > 0;
    if (!isVisible) {
        queue.slots[static_cast<std::size_t>(scroller.slot)].inUse = false;
        scroller.busy = false;
        result.done = true;
    }
    return result;
}

void clearScroller(ScrollerState& scroller, MessageQueue& queue) {
    clearMessages(queue);
    scroller.busy = false;
    queue.idle = false;
}

Colour messageColour(MessageClass messageClass) {
    switch (messageClass) {
    case MessageClass::success: return successLine;
    case MessageClass::trouble: return troubleLine;
    case MessageClass::emergency: return emergencyLine;
    case MessageClass::information: break;
    }
    return informationLine;
}

} // namespace ventrel
