#include "platform/mixer/dropout_meter.h"

#include <algorithm>
#include <utility>

namespace ventrel {

void DropoutMeter::reset() {
    due_ = 0;
    least_ = never;
    before_ = never;
}

void DropoutMeter::noteCall(double now, std::size_t frames) {
    due_ = due_ == 0 ? now : due_;
    const auto late = static_cast<float>(now - due_);
    due_ += static_cast<double>(frames) / rate_;
    // The loop may take it between the two: then this call counts for neither stretch.
    least_.store(std::min(least_.load(std::memory_order_relaxed), late), std::memory_order_relaxed);
}

double DropoutMeter::takeLost() {
    const float least = least_.exchange(never, std::memory_order_relaxed);
    if (least == never) {
        return 0; // not one call: the next time tells
    }
    const float before = std::exchange(before_, least);
    return before == never ? 0 : std::max(0.0F, least - before);
}

} // namespace ventrel
