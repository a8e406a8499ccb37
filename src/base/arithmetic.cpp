#include "base/arithmetic.h"

namespace ventrel {

std::int32_t SafeDiv(std::int32_t a, std::int32_t b) {
    // Wider than the operands, so that the lowest number divided by -1 wraps round instead of trapping.
    return b == 0 ? 0 : static_cast<std::int32_t>(std::int64_t{a} / b);
}

std::int32_t SafeMod(std::int32_t a, std::int32_t b) {
    return b == 0 ? 0 : static_cast<std::int32_t>(std::int64_t{a} % b);
}

} // namespace ventrel
