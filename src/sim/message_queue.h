// The eight lines that wait for the ticker.
//
// The simulation's events are posted here by the shell; the text scroller shows the lines in slot order and
// frees their slots. While an emergency waits or scrolls, nothing else gets in.

#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "sim/simulation_events.h"

namespace ventrel {

struct MessageSlot {
    bool inUse = false;
    std::string text;
    int width = 0; ///< pixels in the scroller's font, and a little more
    MessageClass messageClass = MessageClass::information;
};

struct MessageQueue {
    std::array<MessageSlot, 8> slots;
    bool idle = true; ///< the scroller has nothing to look for; cleared by a line that wants in
};

/// Pixels that a text takes in the scroller's font.
using TextMeasure = std::function<int(std::string_view text)>;

/// Queues a line in the first free slot. False when it is dropped: an emergency is in the queue, or it is
/// full.
bool postMessage(MessageQueue& queue, std::string_view text, MessageClass messageClass,
                 const TextMeasure& measure);

/// Frees every slot.
void clearMessages(MessageQueue& queue);

} // namespace ventrel
