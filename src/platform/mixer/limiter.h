// Keeps a stereo sum below full scale without a hard edge: looks one short block ahead and turns the level
// down in time, and up again slowly.

#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace ventrel {

class Limiter {
public:
    static constexpr std::size_t frames = 32;    ///< of one block
    using Block = std::array<float, 2 * frames>; ///< left and right in turn

    /// The greatest value that comes out.
    static constexpr float ceiling = 0.97F;

    /// Hands in a block and gets back the one before it, within the ceiling.
    Block run(const Block& block);

private:
    Block waiting_{};
    float waitingGain_ = 1; // that the waiting block needs
    float gain_ = 1;        // at the end of the latest block
};

} // namespace ventrel
