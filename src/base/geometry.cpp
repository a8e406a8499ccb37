#include "base/geometry.h"

#include "base/arithmetic.h"

namespace ventrel {

namespace {

int mapped(int targetFrom, int targetTo, int sourceFrom, int sourceTo, int value) {
    const int sourceLength = sourceTo - sourceFrom;
    if (sourceLength == 0) {
        return (targetFrom + targetTo) / 2;
    }
    return targetFrom + SafeDiv((targetTo - targetFrom) * (value - sourceFrom), sourceLength);
}

} // namespace

Point MapPointBetweenRects(const Rect& target, const Rect& source, Point point) {
    return {mapped(target.left, target.right, source.left, source.right, point.x),
            mapped(target.top, target.bottom, source.top, source.bottom, point.y)};
}

} // namespace ventrel
