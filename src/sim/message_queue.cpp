#include "sim/message_queue.h"

#include <algorithm>

namespace ventrel {

namespace {

bool isEmergency(const MessageSlot& slot) {
    return slot.inUse && slot.messageClass == MessageClass::emergency;
}

} // namespace

bool postMessage(MessageQueue& queue, std::string_view text, MessageClass messageClass) {
    if (std::any_of(queue.slots.begin(), queue.slots.end(), isEmergency)) {
        return false;
    }
    queue.idle = false;
    const auto slot = std::find_if(queue.slots.begin(), queue.slots.end(),
                                   [](const MessageSlot& candidate) { return !candidate.inUse; });
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
