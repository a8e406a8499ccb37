#include "platform/mixer/limiter.h"

#include <algorithm>
#include <cmath>

namespace ventrel {

namespace {

constexpr float recovery = 0.003F; // of full level, each block: a third of a second from silence to full

float gainFor(const Limiter::Block& block) {
    float peak = 0;
    for (const float sample : block) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak > Limiter::ceiling ? Limiter::ceiling / peak : 1;
}

} // namespace

Limiter::Block Limiter::run(const Block& block) {
    const float needed = gainFor(block);
    // Between two blocks the gain suits both, so the straight way from one edge to the next suits each.
    const float end = std::min({needed, waitingGain_, gain_ + recovery});
    Block result;
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const float way = static_cast<float>(frame + 1) / static_cast<float>(frames);
        const float gain = gain_ + (end - gain_) * way;
        result[2 * frame] = waiting_[2 * frame] * gain;
        result[2 * frame + 1] = waiting_[2 * frame + 1] * gain;
    }
    gain_ = end;
    waiting_ = block;
    waitingGain_ = needed;
    return result;
}

} // namespace ventrel
