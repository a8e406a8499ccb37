#include "base/random.h"

namespace ventrel {

namespace {

constexpr std::uint32_t multiplier = 214013;
constexpr std::uint32_t increment = 2531011;
constexpr int valueShift = 16;
constexpr std::uint32_t valueMask = 0x7FFF;

} // namespace

int RandomGenerator::next() {
    state = state * multiplier + increment;
    return static_cast<int>(state >> valueShift & valueMask);
}

int Random(RandomGenerator& generator, int a, int b) {
    const int drawn = generator.next();
    return b == 0 ? drawn % a : a + drawn % (b - a + 1);
}

} // namespace ventrel
