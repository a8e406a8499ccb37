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
    const std::int64_t from = b == 0 ? 0 : a;
    const std::int64_t count = b == 0 ? a : std::int64_t{b} - a + 1;
    return static_cast<int>(from + (count == 0 ? 0 : drawn % count));
}

int RandomPercent(RandomGenerator& generator) {
    constexpr int percents = 100;
    return Random(generator, percents);
}

} // namespace ventrel
