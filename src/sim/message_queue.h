// The eight lines that wait for the ticker.
//
// The simulation's events are posted here by the shell; the text scroller shows the lines in slot order and
// frees their slots. While an emergency waits or scrolls, nothing else gets in.

#pragma once

#include <array>
#include <string>
#include <string_view>

namespace ventrel {

/// What a line of the ticker is about; the scroller gives each its colour.
enum class MessageClass { success = 10, trouble = 11, emergency = 12, information = 13 };

struct MessageSlot {
    bool inUse = false;
    std::string text;
    MessageClass messageClass = MessageClass::information;
};

struct MessageQueue {
    std::array<MessageSlot, 8> slots;
    bool idle = true; ///< the scroller has nothing to look for; cleared by a line that wants in
};

/// Whether a line would be queued: no emergency is in the queue, and it is not full.
bool hasRoom(const MessageQueue& queue);

/// Queues a line in the first free slot. False when it is dropped, for want of room.
bool postMessage(MessageQueue& queue, std::string_view text, MessageClass messageClass);

/// Frees every slot.
void clearMessages(MessageQueue& queue);

} // namespace ventrel
