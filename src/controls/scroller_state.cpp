#include "controls/scroller_state.h"

#include <algorithm>

#include "platform/devices/deadline.h"

namespace ventrel {

namespace {

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

ScrollerTickResult tickScroller(ScrollerState& scroller, MessageQueue& queue, Millis now, Millis frameTime) {
    if (!scroller.busy) {
        return queue.idle ? ScrollerTickResult{} : startNextLine(scroller, queue, now);
    }
    if (!takeStep(scroller.lastStep, scroller.stepTime, now, frameTime)) {
        return {ScrollerStep::waiting};
    }
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

Colour messageColour(MessageClass messageClass, const SignalColours& signals) {
    switch (messageClass) {
    case MessageClass::success: return signals.successLine;
    case MessageClass::trouble: return signals.troubleLine;
    case MessageClass::emergency: return signals.emergencyLine;
    case MessageClass::information: break;
    }
    return signals.informationLine;
}

} // namespace ventrel
