#include "tools/chart/plane.h"

#include <algorithm>
#include <cmath>

namespace ventrel::chart {

float Plane::nearest(int x, int y) const {
    return at(std::clamp(x, 0, side_ - 1), std::clamp(y, 0, side_ - 1));
}

float Plane::between(double x, double y) const {
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const double across = x - left;
    const double down = y - top;
    const double upper = mixed(nearest(left, top), nearest(left + 1, top), across);
    const double lower = mixed(nearest(left, top + 1), nearest(left + 1, top + 1), across);
    return static_cast<float>(mixed(upper, lower, down));
}

} // namespace ventrel::chart
