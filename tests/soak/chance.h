// The monkey's own chance: the same on every machine, and none of the game's.

#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <span>

namespace ventrel {

class Chance {
public:
    explicit Chance(std::uint32_t seed) : engine_(seed) {}

    /// From 0 to `count` - 1.
    int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(count)); }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool oneIn(int count) { return below(count) == 0; }

    template <typename Range>
    const auto& oneOf(const Range& range) {
        return range[static_cast<std::size_t>(below(static_cast<int>(std::size(range))))];
    }

private:
    std::mt19937 engine_;
};

} // namespace ventrel
