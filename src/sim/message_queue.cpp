#include "sim/message_queue.h"

#include <algorithm>

namespace ventrel {

namespace {

bool isEmergency(const MessageSlot& slot) {
    return slot.inUse && slot.messageClass == MessageClass::emergency;
}

bool isFree(const MessageSlot& slot) {
    return !slot.inUse;
}

} // namespace

bool hasRoom(const MessageQueue& queue) {
    return std::ranges::none_of(queue.slots, isEmergency) && std::ranges::any_of(queue.slots, isFree);
}

bool postMessage(MessageQueue& queue, std::string_view text, MessageClass messageClass) {
    if (std::ranges::any_of(queue.slots, isEmergency)) {
        return false;
    }
    queue.idle = false;
    const auto slot = std::ranges::find_if(queue.slots, isFree);
    if (slot == queue.slots.end()) {
        return false;
    }
    *slot = {true, std::string{text}, messageClass};
    return true;
}

void clearMessages(MessageQueue& queue) {
    for (MessageSlot& slot : queue.slots) {
        slot = {};
    }
}

} // namespace ventrel
