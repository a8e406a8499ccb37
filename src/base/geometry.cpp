#include "base/geometry.h"

#include <cstdint>

namespace ventrel {

namespace {

/// Wider than its arguments, so that no product of pixels overflows.
int mapped(std::int64_t targetFrom, std::int64_t targetTo, std::int64_t sourceFrom, std::int64_t sourceTo,
           std::int64_t value) {
    const std::int64_t sourceLength = sourceTo - sourceFrom;
    const std::int64_t result =
        sourceLength == 0 ? (targetFrom + targetTo) / 2
                          : targetFrom + (targetTo - targetFrom) * (value - sourceFrom) / sourceLength;
    return static_cast<int>(result);
}

} // namespace

Point MapPointBetweenRects(const Rect& target, const Rect& source, Point point) {
    return {mapped(target.left, target.right, source.left, source.right, point.x),
            mapped(target.top, target.bottom, source.top, source.bottom, point.y)};
}

} // namespace ventrel
